#include "app/transfer_commands.h"

#include <QDir>

#include "app/backup_list.h"
#include "app/read_option_items.h"
#include "app/write_options.h"
#include "files/file_store.h"
#include "files/rescue.h"
#include "link/forwarding_observer.h"
#include "link/line_notes.h"
#include "link/memory_map.h"
#include "link/range_check.h"
#include "link/receiver_checks.h"
#include "link/receiver_writer.h"
#include "memory/bank_layout.h"
#include "ui/error_prompt.h"
#include "ui/row_list.h"

namespace rqm5 {
namespace {

/// As many as fit into the status bar.
constexpr std::size_t kNotedBlocks = 3;

std::vector<std::string> LabelsOf(const std::vector<BlockDifference>& differences)
{
    std::vector<std::string> labels;
    labels.reserve(differences.size());
    for (const BlockDifference& difference : differences)
        labels.push_back(difference.expected.label);
    return labels;
}

}  // namespace

TransferCommands::TransferCommands(Document& document, RadioLink& link, Dialogs& dialogs, QWidget& window)
    : QObject(&window), document_(document), link_(link), dialogs_(dialogs), window_(window)
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
    notes_.clear();
    repeated_ = 0;
    isReadTwice_ = isVerified_ = false;
    progress_ = {};
    begin_ = std::chrono::steady_clock::now();
    asked_ = {};
    emit Started();
    const TransferResult result = work();
    if (repeated_ > 0)
        notes_ << QString::fromStdString(RepeatNote(repeated_)) + QLatin1Char('.');
    link_.Knowledge().Save();
    isRunning_ = false;
    emit Ended(result);
    if (!notes_.isEmpty())
        emit Noted(notes_.join(QLatin1Char(' ')));
}

TransferResult TransferCommands::RunParts(std::vector<TransferPart> parts,
                                          const std::function<TransferResult()>& work)
{
    auto result = TransferResult::Cancelled;
    Occupy([&] {
        progress_.Begin(std::move(parts));
        return result = work();
    });
    return result;
}

void TransferCommands::RunOther(const std::function<void()>& work)
{
    Occupy([&] {
        work();
        return TransferResult::Done;
    });
}

void TransferCommands::WriteBack(const CloneImage& image, const TransferScope& scope)
{
    Occupy([&] {
        other_ = image;
        const TransferResult result = Write(scope);
        other_.reset();
        return result;
    });
}

TransferResult TransferCommands::RunOperation(Transfer transfer, int selector)
{
    switch (transfer) {
        case Transfer::ReadAll:
            return ReadAll();
        case Transfer::ReadMemory:
            return Read(tr("Read Memory (%1)").arg(QString::fromStdString(SelectorText(selector))),
                        {.settings = false, .selector = selector},
                        [selector](ReceiverReader& reader) { return reader.ReadMemory(selector); });
        case Transfer::ReadSettings:
            return Read(tr("Read Settings"), {.memory = false},
                        [](ReceiverReader& reader) { return reader.ReadSettings(); });
        case Transfer::ReadBankPage:
            return Read(tr("Read Bank"), {.settings = false, .memory = false, .banks = true},
                        [](ReceiverReader& reader) { return reader.ReadBankPage(); });
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

TransferResult TransferCommands::ReadAll()
{
    const TransferResult result =
        Read(tr("Read ALL"), {}, [](ReceiverReader& reader) { return reader.ReadAll(); });
    if (result == TransferResult::Done)
        KeepLastRead(document_.Image());
    return result;
}

void TransferCommands::KeepLastRead(const CloneImage& image)
{
    lastRead_ = {image, QDateTime::currentDateTime(), link_.Port().Device()};
}

std::optional<LastRead> TransferCommands::LastFullRead() const
{
    // Another port may have another receiver.
    if (lastRead_ && lastRead_->device == link_.Port().Device())
        return lastRead_;
    const std::optional<HeldImage> held = link_.Knowledge().LastHeld();
    return held ? std::optional(LastRead{held->image, held->since.toLocalTime(), link_.Port().Device(), true})
                : std::nullopt;
}

TransferResult TransferCommands::Read(const QString& name, const TransferScope& scope,
                                      const std::function<TransferResult(ReceiverReader&)>& read)
{
    const CloneImage before = document_.Image();
    const bool hadUnsavedChanges = document_.DataChanged();
    BeginReading(scope);
    std::vector<std::string> unreadable;
    std::vector<ExpectedBlock> blocks;
    auto result = TransferResult::Done;
    {
        Transaction reading(document_, name);
        reading_ = &reading;
        ReceiverReader reader(reading.Image(), link_, *this);
        result = read(reader);
        // What has arrived is in no file, also when it is what was there, and when the read broke off.
        if (reader.HasStored())
            reading.MarkChanged();
        reading_ = nullptr;
        unreadable = reader.Unreadable();
        blocks = reader.Blocks();
    }
    if (result != TransferResult::Cancelled)
        NameUnreadable(unreadable);
    if (result == TransferResult::Done && LoadReadTwice())
        result = ReadTwice(blocks);
    NoteRead(result, scope, before, hadUnsavedChanges);
    return result;
}

/// Such blocks are in the image as they came, which is not what the receiver holds.
void TransferCommands::NameUnreadable(const std::vector<std::string>& names)
{
    if (names.empty())
        return;
    const QString note = QString::fromStdString(UnreadableNote(static_cast<int>(names.size())));
    notes_ << note + QStringLiteral(": ") +
                  RowList(names, kNotedBlocks).replace(QLatin1Char('\n'), QStringLiteral(", ")) +
                  QLatin1Char('.');
    WarnOfBlocks(tr("Read"), tr("%1. Check the cable, then read again.").arg(note), names);
}

/// Names the blocks that a second read brings otherwise. The image keeps the first.
TransferResult TransferCommands::ReadTwice(const std::vector<ExpectedBlock>& blocks)
{
    std::vector<BlockDifference> differences;
    BeginPart();
    AftermathObserver observer(*this, NotReadTwice());
    const TransferResult result = ReadBack(blocks, link_, observer, differences);
    if (result == TransferResult::Cancelled)
        notes_ << QString::fromStdString(NotReadTwice());
    if (!differences.empty())
        WarnOfBlocks(tr("Verify"),
                     tr("%1. Check the cable, then read again.")
                         .arg(QString::fromStdString(OtherwiseNote(static_cast<int>(differences.size())))),
                     LabelsOf(differences));
    isReadTwice_ = result == TransferResult::Done && differences.empty();
    return result;
}

void TransferCommands::Stored()
{
    if (reading_ != nullptr)
        reading_->Announce();
}

TransferResult TransferCommands::Write(const TransferScope& scope)
{
    const WriteOptions options = LoadWriteOptions();
    BeginWriting(scope, options.keepsBackup, options.verifies);
    auto result = TransferResult::Done;
    QStringList outside;
    for (const std::string& row : RowsWrittenOutOfRange(Source(), scope))
        outside << QString::fromStdString(row);
    emit OutOfRange(outside);
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
        notes_ << QString::fromStdString(NothingWritten());
    if (result != TransferResult::Done)
        return result;
    return SaveBackup(path, backup) ? TransferResult::Done : TransferResult::Failed;
}

bool TransferCommands::SaveBackup(const QString& path, const CloneImage& backup)
{
    const auto problem = SaveCloneFile(path, backup).problem;
    if (problem)
        Message({problem->text, problem->details, Rescue(backup, path) + ' ' + NothingWritten()});
    else if (const int deleted = DeleteBeyondLimit(path); deleted > 0)
        notes_ << tr("Old backups deleted: %1.").arg(deleted);
    return !problem;
}

void TransferCommands::BlockRead(int address, const MemoryBlock& block)
{
    if (address == AreaOf(Area::Settings).address)
        receiver_.Read(block, link_.Port().Device());
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
                              .details = QString::fromStdString(OtherModelText(known, wanted)),
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
              .details = QString::fromStdString(plan.Summary())});
}

TransferResult TransferCommands::Verify(const std::vector<ExpectedBlock>& expected)
{
    std::vector<BlockDifference> differences;
    BeginPart();
    AftermathObserver observer(*this, NotVerified());
    const TransferResult result = ReadBack(expected, link_, observer, differences);
    if (result == TransferResult::Cancelled)
        notes_ << QString::fromStdString(NotVerified());
    if (!differences.empty())
        WarnOfBlocks(tr("Verify"), tr("The receiver does not hold what was written. Write again."),
                     LabelsOf(differences));
    isVerified_ = result == TransferResult::Done && differences.empty();
    return result;
}

void TransferCommands::Cancel()
{
    if (!isRunning_)
        return;
    isCancelled_ = true;
    link_.Cancel();
}

void TransferCommands::WarnOfBlocks(const QString& title, const QString& text,
                                    const std::vector<std::string>& names)
{
    constexpr std::size_t kNamedBlocks = 20;
    Warn({.title = title,
          .text = text,
          .details = RowList(names, kNamedBlocks),
          .more = names.size() > kNamedBlocks ? RowList(names, names.size()) : QString()});
}

void TransferCommands::Warn(Prompt warning)
{
    warning.icon = QMessageBox::Warning;
    Ask(warning);
}

void TransferCommands::Message(const Problem& problem)
{
    Ask(ErrorPrompt(problem));
}

}  // namespace rqm5
