// The writing part of TransferCommands: backup, model, blocks, verification.

#include <QDir>

#include "app/backup_list.h"
#include "app/transfer_commands.h"
#include "app/write_options.h"
#include "files/file_store.h"
#include "files/rescue.h"
#include "language/translated.h"
#include "link/forwarding_observer.h"
#include "link/line_notes.h"
#include "link/memory_map.h"
#include "link/range_check.h"
#include "link/receiver_checks.h"
#include "link/receiver_writer.h"

namespace rqm5 {

TransferResult TransferCommands::Write(const TransferScope& scope)
{
    const WriteOptions options = LoadWriteOptions();
    BeginWriting(scope, options.keepsBackup, options.verifies);
    auto result = TransferResult::Done;
    emit OutOfRange(RowsWrittenOutOfRange(Source(), scope));
    if (options.keepsBackup)
        result = KeepBackup(scope, options.backupFolder);
    if (result == TransferResult::Done && !MayWriteToThisModel())
        result = TransferResult::Cancelled;
    if (result == TransferResult::Done)
        result = WriteBlocks(scope, options.verifies);
    if (result == TransferResult::Done && options.verifies)
        result = Verify(ExpectedAfterWrite(Source(), scope));
    NoteWritten(result, options.verifies);
    return result;
}

TransferResult TransferCommands::KeepBackup(const TransferScope& scope, const QString& folder)
{
    QDir().mkpath(folder);  // where it cannot be made, what follows says why
    const QString path = NewBackupPath(folder, scope, QDateTime::currentDateTime());
    if (const auto problem = ReadingObstacle(path)) {
        Message({problem->text, problem->details, NothingWritten()});
        return TransferResult::Failed;
    }
    CloneImage backup;
    BeginPart();
    const TransferResult result = ReadBackup(Source(), scope, link_, *this, backup);
    if (result == TransferResult::Cancelled)
        notes_ << Translated(NothingWritten());
    if (result != TransferResult::Done)
        return result;
    return SaveBackup(path, backup) ? TransferResult::Done : TransferResult::Failed;
}

bool TransferCommands::SaveBackup(const QString& path, const CloneImage& backup)
{
    const auto problem = SaveCloneFile(path, backup).problem;
    if (problem)
        Message({problem->text, problem->details,
                 rqm5::Message::List({Rescue(backup, path), NothingWritten()}, " ")});
    else if (const int deleted = DeleteBeyondLimit(path); deleted > 0)
        notes_ << tr("Old backups deleted: %1.").arg(deleted);
    return !problem;
}

/// Asks before the first write to a receiver that has told to be another model.
bool TransferCommands::MayWriteToThisModel()
{
    const int wanted = Source().Settings().model;
    const int known = receiver_.Model(link_.Port().Device()).value_or(wanted);
    const std::pair models(known, wanted);
    if (known == wanted || models == agreed_)
        return true;
    const bool isMeant = Ask({.title = tr("Write"),
                              .text = tr("The receiver is another model. Write to it all the same?"),
                              .details = Translated(OtherModelText(known, wanted)),
                              .icon = QMessageBox::Warning,
                              .buttons = QMessageBox::Yes | QMessageBox::No,
                              .defaultButton = QMessageBox::No}) == QMessageBox::Yes;
    if (isMeant)
        agreed_ = models;
    else
        notes_ << tr("Nothing was written.");
    return isMeant;
}

TransferResult TransferCommands::WriteBlocks(const TransferScope& scope, bool isVerified)
{
    BeginPart();
    ReceiverWriter writer(Source(), scope, link_, *this);
    const TransferResult result = writer.Write();
    if (other_)
        other_ = writer.Written();
    else
        document_.Absorb([&writer](CloneImage& image) { image = writer.Written(); });
    if (const int flags = writer.OtherFlags(); flags > 0)
        notes_ << tr("Enable flags of other rows replaced by the receiver's: %1.").arg(flags);
    TellWritten(writer.Plan(), writer.Written(), result);
    if (!writer.IsInDoubt() || isVerified)
        return result;
    Message(DoubtfulWrite());
    return TransferResult::Failed;
}

void TransferCommands::TellWritten(const WritePlan& plan, const CloneImage& image, TransferResult result)
{
    if (plan.MayHaveSent(AreaOf(Area::Settings).address))
        receiver_.Written(image.Settings().model, link_.Port().Device());
    if (result == TransferResult::Cancelled && plan.HasBegun())
        Warn({.title = tr("Write"),
              .text = tr("The write was cancelled."),
              .details = Translated(plan.Summary())});
}

TransferResult TransferCommands::Verify(const std::vector<ExpectedBlock>& expected)
{
    std::vector<BlockDifference> differences;
    BeginPart();
    AftermathObserver observer(*this, NotVerified());
    const TransferResult result = ReadBack(expected, link_, observer, differences);
    if (result == TransferResult::Cancelled)
        notes_ << Translated(NotVerified());
    if (!differences.empty())
        WarnOfBlocks(tr("Verify"), tr("The receiver does not hold what was written. Write again."),
                     LabelsOf(differences));
    isVerified_ = result == TransferResult::Done && differences.empty();
    return result;
}

}  // namespace rqm5
