#include "app/change_commands.h"

#include <QDir>

#include "app/conflicts_dialog.h"
#include "app/write_changes_dialog.h"
#include "app/write_options.h"
#include "files/file_store.h"
#include "language/translated.h"
#include "link/change_writer.h"
#include "link/forwarding_observer.h"
#include "link/line_notes.h"
#include "link/range_check.h"
#include "link/receiver_checks.h"

namespace rqm5 {
namespace {

using enum TransferResult;

/// So many are read without a question: five seconds.
constexpr std::size_t kFewBlocks = 100;

}  // namespace

ChangeCommands::ChangeCommands(Document& document, RadioLink& link, TransferCommands& transfers,
                               Dialogs& dialogs, QWidget& window)
    : QObject(&window),
      document_(document),
      link_(link),
      transfers_(transfers),
      dialogs_(dialogs),
      window_(window)
{
}

void ChangeCommands::mnuWrChanges_Click()
{
    link_.Knowledge().CatchUp();
    if (!LearnReceiver())
        return;
    const ReceiverKnowledge& knowledge = link_.Knowledge();
    ChangePlan plan(document_.Image(), KnownContents(knowledge), KnownFrom::Receiver,
                    knowledge.ArePresetsDue());
    dlgWriteChanges dialog(document_.Image(), plan, knowledge.LastHeld()->since, &window_);
    if (dialogs_.Run(dialog) != QDialog::Accepted)
        return;
    const auto count = [](const auto& blocks) { return static_cast<int>(blocks.size()); };
    std::vector<TransferPart> parts = {{Work::Check, count(plan.BlocksToCheck()), 0},
                                       {Work::WriteChanges, count(plan.Wanted()), 0}};
    if (dialog.Verifies())
        parts.push_back({Work::Verify, count(ExpectedAfterChanges(document_.Image(), plan)), 0});
    transfers_.RunParts(std::move(parts), [&] { return Run(plan, dialog.KeepsBackup(), dialog.Verifies()); });
}

/// Reads until nothing is unknown that is needed to tell what differs.
bool ChangeCommands::LearnReceiver()
{
    for (auto wanted = BlocksToLearn(link_.Knowledge()); !wanted.empty();
         wanted = BlocksToLearn(link_.Knowledge())) {
        if (!MayRead(wanted.size()))
            return false;
        const int blocks = static_cast<int>(wanted.size());
        const TransferResult result = transfers_.RunParts({{Work::Learn, blocks, 0}}, [&] {
            transfers_.BeginPart();
            AftermathObserver observer(transfers_.Observer(), NothingChanged());
            BlockMap read;
            return ReadBlocks(wanted, document_.Image(), link_, observer, read);
        });
        if (result != Done)
            return false;
    }
    return true;
}

bool ChangeCommands::MayRead(std::size_t blocks)
{
    return blocks <= kFewBlocks ||
           dialogs_.Ask(&window_, {.title = tr("Write Changes"),
                                   .text = tr("What the receiver holds must be read first."),
                                   .details = Translated({MESSAGE("%1."), {UnknownNote(blocks)}}),
                                   .icon = QMessageBox::Question,
                                   .buttons = QMessageBox::Ok | QMessageBox::Cancel,
                                   .defaultButton = QMessageBox::Ok,
                                   .captions = {{QMessageBox::Ok, tr("&Read")}}}) == QMessageBox::Ok;
}

TransferResult ChangeCommands::Run(ChangePlan& plan, bool keepsBackup, bool verifies)
{
    KnownBeforeCheck before(link_.Knowledge(), plan.BlocksToCheck());
    TransferResult result = Check(plan);
    if (result == Done && !(DecideConflicts(plan) && transfers_.MayWriteToThisModel()))
        result = Cancelled;
    const bool isWritten = !plan.Wanted().empty();  // not when all of it is decided for the receiver
    if (result == Done && keepsBackup && isWritten)
        result = KeepBackup(plan);
    if ((result == Cancelled || !isWritten) && !transfers_.HasNote())
        transfers_.AddNote(Translated(NothingChanged()));
    if (result != Done)
        return result;
    before.Forget();
    TakeOver(plan);
    return isWritten ? Write(plan, verifies) : Done;
}

/// Reads each block that is to be written: somebody may have edited at the receiver itself.
TransferResult ChangeCommands::Check(ChangePlan& plan)
{
    transfers_.BeginPart();
    AftermathObserver observer(transfers_.Observer(), NothingChanged());
    BlockMap read;
    const TransferResult result = ReadBlocks(plan.BlocksToCheck(), document_.Image(), link_, observer, read);
    if (result == Done)
        plan.Check(read);
    return result;
}

bool ChangeCommands::DecideConflicts(ChangePlan& plan)
{
    if (plan.Conflicts().empty())
        return true;
    dlgWriteConflicts dialog(document_.Image(), plan, &window_);
    if (transfers_.Run(dialog) != QDialog::Accepted)
        return false;
    plan.Decide(dialog.TakesReceivers());
    return true;
}

TransferResult ChangeCommands::KeepBackup(const ChangePlan& plan)
{
    const QString folder = LoadWriteOptions().backupFolder;
    QDir().mkpath(folder);  // where it cannot be made, what follows says why
    const QString path = NewBackupNamed(folder, QStringLiteral("changes"), QDateTime::currentDateTime());
    return transfers_.SaveBackup(path, ImageOfBlocks(plan.Held())) ? Done : Failed;
}

TransferResult ChangeCommands::Write(const ChangePlan& plan, bool verifies)
{
    emit transfers_.OutOfRange(RowsWrittenOutOfRange(document_.Image(), plan.Wanted()));
    transfers_.BeginPart();
    ChangeWriter writer(document_.Image(), plan, link_, transfers_.Observer());
    TransferResult result = writer.Write();
    transfers_.TellWritten(writer.Plan(), document_.Image(), result);
    if (result == Done && verifies)
        result = transfers_.Verify(ExpectedAfterChanges(document_.Image(), plan));
    if (result == Done && writer.IsInDoubt() && !verifies) {
        transfers_.Observer().Message(DoubtfulWrite());
        result = Failed;
    }
    transfers_.NoteWritten(result, verifies);
    return result;
}

/// What stays as the receiver has it comes into the image: rows that were decided so as an edit, flags and
/// links that are merged as in any write.
void ChangeCommands::TakeOver(const ChangePlan& plan)
{
    const CloneImage result = plan.Result();
    int flags = 0;
    document_.Absorb([&](CloneImage& image) {
        for (int row = 0; row < kRadioRows; ++row) {
            flags += image.MemEnable(row) != result.MemEnable(row) ? 1 : 0;
            image.MemData(row).enabled = result.MemEnable(row);
        }
        for (int flag = 0; flag < kLinkFlags; ++flag)
            image.SetBankLink(flag, result.BankLink(flag));
    });
    if (flags > 0)
        transfers_.AddNote(tr("Enable flags of other rows replaced by the receiver's: %1.").arg(flags));
    if (document_.Image() != result)
        document_.Edit(MESSAGE("Take what was changed at the receiver"),
                       [&result](CloneImage& image) { image = result; });
}

}  // namespace rqm5
