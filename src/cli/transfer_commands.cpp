#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/receiver_session.h"
#include "cli/streams.h"
#include "cli/values.h"
#include "cli/write_changes.h"
#include "files/file_kind.h"
#include "files/file_store.h"
#include "image/display_text.h"
#include "image/image_change.h"
#include "link/closing_notes.h"
#include "link/forwarding_observer.h"
#include "link/line_notes.h"
#include "link/memory_map.h"
#include "link/range_check.h"
#include "link/receiver_checks.h"
#include "link/receiver_identity.h"
#include "link/receiver_reader.h"
#include "link/receiver_writer.h"
#include "memory/receiver_range.h"
#include "memory/start_image.h"
#include "settings/settings_codec.h"

namespace rqm5 {
namespace {

/// Without a name no backup is wanted.
std::optional<Problem> BackupObstacle(const std::string& path)
{
    // The file may be the one that is to be written, or the backup of last week.
    if (IsStandard(path))
        return std::nullopt;
    if (!path.empty() && Exists(path))
        return Problem{kFileOpenError,
                       {MESSAGE("%1: there is a file already, and a backup replaces none; choose "
                                "another name"),
                        {path}}};
    return path.empty() ? std::nullopt : ReadingObstacle(PathOf(path));
}

/// Listens for the model of the receiver.
class ModelListener : public ForwardingObserver
{
  public:
    using ForwardingObserver::ForwardingObserver;

    void BlockRead(int address, const MemoryBlock& block) override
    {
        if (address == AreaOf(Area::Settings).address)
            model_ = ModelOf(block);
    }

    const std::optional<int>& Model() const { return model_; }

  private:
    std::optional<int> model_;
};

/// \param model  takes the model of the receiver, as far as the backup tells it
Status KeepBackup(const CloneImage& image, const TransferScope& scope, const std::string& path,
                  ReceiverSession& session, Console& console, std::optional<int>& model)
{
    CloneImage backup;
    session.Observer().Begin(BlocksToBackUp(image, scope));
    ModelListener listener(session.Observer());
    const TransferResult result = ReadBackup(image, scope, session.Link(), listener, backup);
    model = listener.Model();
    const Status status = session.Finish(result);
    if (result == TransferResult::Cancelled)
        Say(console, NothingWritten());
    if (status != Status::Done)
        return status;
    return SaveRead(path, backup, console, NothingWritten());
}

/// Names the blocks that a second read brings otherwise. \param agrees  cleared when there is one
Status ReadTwice(const ReceiverReader& reader, ReceiverSession& session, Console& console, bool& agrees)
{
    const std::vector<ExpectedBlock> first = reader.Blocks();
    session.Observer().Begin(static_cast<int>(first.size()));
    AftermathObserver observer(session.Observer(), NotReadTwice());
    std::vector<BlockDifference> differences;
    const TransferResult result = ReadBack(first, session.Link(), observer, differences);
    const Status status = session.Finish(result);
    if (result == TransferResult::Cancelled)
        Say(console, NotReadTwice());
    agrees = agrees && differences.empty();
    if (differences.empty())
        return status;
    Report(console,
           {kCommunicationError, {MESSAGE("%1:"), {OtherwiseNote(static_cast<int>(differences.size()))}}});
    std::vector<Message> rows;
    rows.reserve(differences.size());
    for (const auto& [block, read] : differences)
        rows.push_back(
            {MESSAGE("%1: first %2, then %3"), {block.label, block.contents.String(), read.String()}});
    List(console, rows);
    return status;
}

/// Saves what is not for certain what the receiver holds; the file as it was is not lost by it.
Status SaveDoubtful(const std::string& path, const CloneImage& image, Console& console)
{
    QString kept;
    if (Exists(path))
        if (const auto problem = KeepOldFile(PathOf(path), kept))
            return Fail(console, {problem->text, problem->details, {MESSAGE("%1."), {Unchanged(path)}}});
    if (SaveRead(path, image, console) == Status::Done)
        Say(console,
            kept.isEmpty()
                ? Message(MESSAGE("%1 is written with what came. Check the cable and read again."), {path})
                : Message(MESSAGE("%1 is written with what came; as it was it is kept as %2. Check the "
                                  "cable and read again."),
                          {path, kept.toStdString()}));
    return Status::Failed;
}

Status Write(const CloneImage& image, const TransferScope& scope, bool isVerified, ReceiverSession& session,
             Console& console)
{
    ReceiverWriter writer(image, scope, session.Link(), session.Observer());
    session.Observer().Begin(writer.Plan().BlockCount());
    const TransferResult result = writer.Write();
    const Status status = session.Finish(result);
    if (result == TransferResult::Cancelled)
        Say(console, writer.Plan().Summary());
    if (const int flags = writer.OtherFlags(); flags > 0)
        Say(console, OtherFlagsNote(flags));
    // The comparison that follows finds out.
    return writer.IsInDoubt() && !isVerified ? Fail(console, DoubtfulWrite()) : status;
}

}  // namespace

Message OtherFlagsNote(int flags)
{
    return {MESSAGE("Enable flags of other rows that differ from FILE: %1; the receiver keeps its own."),
            {flags}};
}

void WarnOutOfRange(const std::vector<Message>& rows, Console& console)
{
    if (!rows.empty())
        Warn(console,
             {MESSAGE("these rows are outside the receiver's range (%1) and are written as they are:"),
              {kReceiverRangeText}},
             rows);
}

Status RunRead(const Arguments& arguments, Console& console)
{
    CloneImage image = StartUpImage(0);
    std::optional<Problem> problem;
    if (!IsStandard(arguments[0]))
        problem = LoadOrStart(arguments[0], image);
    if (!problem && !IsStandard(arguments[0]))
        problem = ReadingObstacle(PathOf(arguments[0]));
    if (problem)
        return Fail(console, *problem);
    const TransferScope scope = ScopeOf(arguments);
    const CloneImage before = image;
    ReceiverSession session(arguments, console);
    session.TellPort();
    session.Observer().Begin(BlocksToBackUp(image, scope));
    ReceiverReader reader(image, session.Link(), session.Observer());
    if (const Status status = session.Finish(reader.Read(scope)); status != Status::Done)
        return status;
    const std::vector<Message> unreadable = reader.Unreadable();
    if (!unreadable.empty()) {
        Report(console, {kCommunicationError,
                         {MESSAGE("%1:"), {UnreadableNote(static_cast<int>(unreadable.size()))}}});
        List(console, unreadable);
    }
    bool agrees = unreadable.empty();
    if (arguments.Has("--verify"))
        if (const Status status = ReadTwice(reader, session, console, agrees); status != Status::Done)
            return status;
    if (!agrees)
        return SaveDoubtful(arguments[0], image, console);
    const Status status = SaveRead(arguments[0], image, console);
    if (status == Status::Done)
        session.Close(
            ReadNote(session.Taken(), arguments.Has("--verify"), scope, image, Difference(before, image)));
    return status;
}

Status RunWrite(const Arguments& arguments, Console& console)
{
    CloneImage image;
    if (const auto problem = Load(arguments[0], image))
        return Fail(console, *problem);
    const std::string backup = arguments.Value("--backup");
    if (const auto problem = BackupObstacle(backup))
        return Fail(console, {problem->text, problem->details, NothingWritten()});
    const TransferScope scope = ScopeOf(arguments);
    const bool isOfChanges = arguments.Has("--changes");
    if (!isOfChanges)
        WarnOutOfRange(RowsWrittenOutOfRange(image, scope), console);
    ReceiverSession session(arguments, console);
    session.TellPort();
    if (isOfChanges)
        return WriteChanges(arguments, image, session, console);
    Status status = Status::Done;
    std::optional<int> model;
    if (!backup.empty())
        status = KeepBackup(image, scope, backup, session, console, model);
    const int wanted = image.Settings().model;
    if (status == Status::Done && model.value_or(wanted) != wanted && !arguments.Has("--force"))
        status = Fail(console, {kDataError,
                                {MESSAGE("%1 If that is meant, repeat with --force. The backup is in %2"),
                                 {OtherModelText(*model, wanted), backup}},
                                MESSAGE("Nothing was written.")});
    if (status == Status::Done)
        status = Write(image, scope, arguments.Has("--verify"), session, console);
    if (status == Status::Done && arguments.Has("--verify"))
        status = CompareWithReceiver(ExpectedAfterWrite(image, scope), session, console, NotVerified());
    if (status == Status::Done)
        session.Close(WrittenNote(session.Taken(), arguments.Has("--verify")));
    return status;
}

}  // namespace rqm5
