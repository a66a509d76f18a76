#include "cli/write_changes.h"

#include <optional>
#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/values.h"
#include "image/display_text.h"
#include "link/change_list.h"
#include "link/change_writer.h"
#include "link/closing_notes.h"
#include "link/forwarding_observer.h"
#include "link/line_notes.h"
#include "link/range_check.h"
#include "link/receiver_checks.h"
#include "link/receiver_identity.h"
#include "settings/settings_codec.h"

namespace rqm5 {
namespace {

/// One command at work. Each part ends with the status of the command when it is not Done.
class ChangesCommand
{
  public:
    ChangesCommand(const Arguments& arguments, const CloneImage& image, ReceiverSession& session,
                   Console& console)
        : arguments_(arguments), image_(image), session_(session), console_(console)
    {
    }

    Status Run()
    {
        if (const Status status = MakePlan(); status != Status::Done)
            return status;
        if (plan_->Wanted().empty()) {
            Say(console_, MESSAGE("The receiver holds what FILE says already; nothing was written."));
            return Status::Done;
        }
        KnownBeforeCheck before(session_.Link().Knowledge(), plan_->BlocksToCheck());
        for (const auto part : {&ChangesCommand::Check, &ChangesCommand::KeepBackup})
            if (const Status status = (this->*part)(); status != Status::Done)
                return status;
        before.Forget();
        Status status = Write();
        if (status == Status::Done && arguments_.Has("--verify"))
            status =
                CompareWithReceiver(ExpectedAfterChanges(image_, *plan_), session_, console_, NotVerified());
        if (status == Status::Done)
            session_.Close(WrittenNote(session_.Taken(), arguments_.Has("--verify")));
        return status;
    }

  private:
    Status MakePlan()
    {
        const ReceiverKnowledge& knowledge = session_.Link().Knowledge();
        if (arguments_.Has("--known")) {
            CloneImage known;
            if (const auto problem = Load(arguments_.Value("--known"), known))
                return Fail(console_, {problem->text, problem->details, NothingChanged()});
            plan_.emplace(image_, BlocksOfImage(known), KnownFrom::File,
                          !knowledge.HasEarlier() && knowledge.ArePresetsDue());
            return Status::Done;
        }
        const bool isFromEarlier = knowledge.HasEarlier();
        if (const Status status = Learn(knowledge); status != Status::Done)
            return status;
        if (isFromEarlier)
            TellAge(knowledge.LastHeld()->since);
        plan_.emplace(image_, KnownContents(knowledge), KnownFrom::Receiver, knowledge.ArePresetsDue());
        return Status::Done;
    }

    Status Learn(const ReceiverKnowledge& knowledge)
    {
        for (auto wanted = BlocksToLearn(knowledge); !wanted.empty(); wanted = BlocksToLearn(knowledge)) {
            if (!knowledge.HasEarlier())
                Say(console_, {MESSAGE("%1."), {UnknownNote(wanted.size())}});
            BlockMap read;
            if (const Status status = Read(wanted, read); status != Status::Done)
                return status;
        }
        return Status::Done;
    }

    /// For people; a script gets no line that a write has not.
    void TellAge(const QDateTime& since)
    {
        if (console_.progressColumns > 0)
            Say(console_, {MESSAGE("Known of the receiver since %1."),
                           {since.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")).toStdString()}});
    }

    Status Read(const std::vector<int>& addresses, BlockMap& read)
    {
        session_.Observer().Begin(static_cast<int>(addresses.size()));
        AftermathObserver observer(session_.Observer(), NothingChanged());
        const TransferResult result = ReadBlocks(addresses, image_, session_.Link(), observer, read);
        const Status status = session_.Finish(result);
        if (result == TransferResult::Cancelled)
            Say(console_, NothingChanged());
        return status;
    }

    Status Check()
    {
        BlockMap read;
        if (const Status status = Read(plan_->BlocksToCheck(), read); status != Status::Done)
            return status;
        plan_->Check(read);
        if (!plan_->Conflicts().empty())
            return RefuseConflicts();
        if (plan_->Wanted().empty())
            return Status::Done;  // somebody has made the same change there
        const int wanted = image_.Settings().model;
        const int model = ModelOf(plan_->Held().at(AreaOf(Area::Settings).address)).value_or(wanted);
        if (model == wanted || arguments_.Has("--force"))
            return Status::Done;
        return Fail(console_,
                    {kDataError,
                     {MESSAGE("%1 If that is meant, repeat with --force."), {OtherModelText(model, wanted)}},
                     NothingChanged()});
    }

    Status RefuseConflicts()
    {
        Report(
            console_,
            {kDataError,
             MESSAGE("What is to be written was changed at the receiver, too. Read it into another file and "
                     "take over what is right, or write without --changes."),
             NothingChanged()});
        std::vector<Message> fields;
        for (const Conflict& conflict : plan_->Conflicts()) {
            const ConflictRow row = DescribeConflict(image_, *plan_, conflict);
            for (const ConflictField& field : row.fields)
                fields.push_back({MESSAGE("%1, %2: known %3, receiver %4, FILE %5"),
                                  {row.label, field.name, field.known, field.receiver, field.image}});
        }
        List(console_, fields);
        return Status::Failed;
    }

    Status KeepBackup()
    {
        const std::string path = arguments_.Value("--backup");
        return path.empty() || plan_->Wanted().empty()
                   ? Status::Done
                   : SaveRead(path, ImageOfBlocks(plan_->Held()), console_, NothingWritten());
    }

    Status Write()
    {
        WarnOutOfRange(RowsWrittenOutOfRange(image_, plan_->Wanted()), console_);
        ChangeWriter writer(image_, *plan_, session_.Link(), session_.Observer());
        session_.Observer().Begin(writer.Plan().BlockCount());
        const TransferResult result = writer.Write();
        const Status status = session_.Finish(result);
        if (result == TransferResult::Cancelled)
            Say(console_, writer.Plan().Summary());
        if (const int flags = OtherFlags(); flags > 0)
            Say(console_, OtherFlagsNote(flags));
        // The comparison that follows finds out.
        return writer.IsInDoubt() && !arguments_.Has("--verify") ? Fail(console_, DoubtfulWrite()) : status;
    }

    int OtherFlags() const
    {
        const CloneImage result = plan_->Result();
        int flags = 0;
        for (int row = 0; row < kRadioRows; ++row)
            flags += result.MemEnable(row) != image_.MemEnable(row) ? 1 : 0;
        return flags;
    }

    const Arguments& arguments_;
    const CloneImage& image_;
    ReceiverSession& session_;
    Console& console_;
    std::optional<ChangePlan> plan_;
};

}  // namespace

Status WriteChanges(const Arguments& arguments, const CloneImage& image, ReceiverSession& session,
                    Console& console)
{
    return ChangesCommand(arguments, image, session, console).Run();
}

Message WriteConflict(const Arguments& arguments)
{
    if (arguments.Has("--known") && !arguments.Has("--changes"))
        return MESSAGE("--known says what a write of changes begins with; add --changes");
    for (const char* option : {"--only", "--bank"})
        if (arguments.Has(option) && arguments.Has("--changes"))
            return {MESSAGE("--changes looks at all parts; leave out %1"), {std::string(option)}};
    return ScopeConflict(arguments);
}

}  // namespace rqm5
