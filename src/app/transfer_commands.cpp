#include "app/transfer_commands.h"

#include <QDir>

#include "app/write_options.h"
#include "files/file_store.h"
#include "link/forwarding_observer.h"
#include "link/receiver_checks.h"
#include "link/receiver_reader.h"
#include "link/receiver_writer.h"
#include "link/write_record.h"
#include "ui/error_prompt.h"
#include "ui/row_list.h"

namespace rqm5 {

TransferCommands::TransferCommands(CloneImage& image, RadioLink& link, Dialogs& dialogs, QWidget& window)
    : QObject(&window), image_(image), link_(link), dialogs_(dialogs), window_(window)
{
}

void TransferCommands::Run(Transfer transfer, int selector)
{
    Occupy([&] { return RunOperation(transfer, selector); });
}

void TransferCommands::Occupy(const std::function<TransferResult()>& work)
{
    if (isRunning_)
        return;
    isRunning_ = true;
    isCancelled_ = false;
    emit Started();
    const TransferResult result = work();
    isRunning_ = false;
    emit Ended(result);
}

void TransferCommands::RunOther(const std::function<void()>& work)
{
    Occupy([&] {
        work();
        return TransferResult::Done;
    });
}

TransferResult TransferCommands::RunOperation(Transfer transfer, int selector)
{
    ReceiverReader reader(image_, link_, *this);
    switch (transfer) {
        case Transfer::ReadAll:
            return reader.ReadAll();
        case Transfer::ReadMemory:
            return reader.ReadMemory(selector);
        case Transfer::ReadSettings:
            return reader.ReadSettings();
        case Transfer::ReadBankPage:
            return reader.ReadBankPage();
        case Transfer::WriteAll:
            return Write({});
        case Transfer::WriteMemory:
            return Write({.settings = false, .selector = selector});
        case Transfer::WriteSettings:
            return Write({.memory = false});
        case Transfer::WriteBankPage:
            return Write({.settings = false, .memory = false, .banks = true});
    }
    return TransferResult::Failed;
}

TransferResult TransferCommands::Write(const TransferScope& scope)
{
    const WriteOptions options = LoadWriteOptions();
    auto result = TransferResult::Done;
    if (options.keepsBackup)
        result = KeepBackup(scope, options.backupFolder);
    if (result == TransferResult::Done)
        result = WriteBlocks(scope);
    if (result == TransferResult::Done && options.verifies)
        result = Verify(scope);
    return result;
}

TransferResult TransferCommands::KeepBackup(const TransferScope& scope, const QString& folder)
{
    CloneImage backup;
    const TransferResult result = ReadBackup(image_, scope, link_, *this, backup);
    if (result == TransferResult::Cancelled)
        emit Noted(QString::fromStdString(NothingWritten()));
    if (result != TransferResult::Done)
        return result;
    return SaveBackup(scope, folder, backup) ? TransferResult::Done : TransferResult::Failed;
}

bool TransferCommands::SaveBackup(const TransferScope& scope, const QString& folder, CloneImage& backup)
{
    QDir().mkpath(folder);  // where it cannot be made, saving says why
    const auto problem =
        SaveCloneFile(NewBackupPath(folder, scope, QDateTime::currentDateTime()), backup).problem;
    if (problem)
        Message({problem->text, problem->details, NothingWritten()});
    return !problem;
}

TransferResult TransferCommands::WriteBlocks(const TransferScope& scope)
{
    WriteRecord record(image_, scope, *this);
    ReceiverWriter writer(image_, link_, record);
    const TransferResult result = WriteScope(writer, scope);
    if (result == TransferResult::Cancelled && record.HasBegun())
        Warn({.title = tr("Write"),
              .text = tr("The write was cancelled."),
              .details = QString::fromStdString(record.Summary())});
    return result;
}

TransferResult TransferCommands::Verify(const TransferScope& scope)
{
    constexpr std::size_t kNamedBlocks = 20;
    std::vector<BlockDifference> differences;
    AftermathObserver observer(*this, NotVerified());
    const TransferResult result = ReadBack(ExpectedAfterWrite(image_, scope), link_, observer, differences);
    if (result == TransferResult::Cancelled)
        emit Noted(QString::fromStdString(NotVerified()));
    if (!differences.empty()) {
        std::vector<std::string> rows;
        rows.reserve(differences.size());
        for (const BlockDifference& difference : differences)
            rows.push_back(difference.expected.label);
        Warn({.title = tr("Verify"),
              .text = tr("The receiver does not hold what was written. Write again."),
              .details = RowList(rows, kNamedBlocks),
              .more = rows.size() > kNamedBlocks ? RowList(rows, rows.size()) : QString()});
    } else if (result == TransferResult::Done) {
        emit Noted(tr("Written and verified: the receiver holds what was written."));
    }
    return result;
}

void TransferCommands::Cancel()
{
    if (!isRunning_)
        return;
    isCancelled_ = true;
    link_.Cancel();
}

void TransferCommands::Warn(Prompt warning)
{
    warning.icon = QMessageBox::Warning;
    dialogs_.Ask(&window_, warning);
}

void TransferCommands::Message(const Problem& problem)
{
    dialogs_.Ask(&window_, ErrorPrompt(problem));
}

}  // namespace rqm5
