#include "app/transfer_commands.h"

#include "app/read_option_items.h"
#include "language/language.h"
#include "language/translated.h"
#include "link/forwarding_observer.h"
#include "link/line_notes.h"
#include "link/memory_map.h"
#include "link/receiver_checks.h"
#include "memory/bank_layout.h"
#include "ui/error_prompt.h"
#include "ui/row_list.h"

namespace rqm5 {
namespace {

/// As many as fit into the status bar.
constexpr std::size_t kNotedBlocks = 3;

}  // namespace

TransferCommands::TransferCommands(Document& document, RadioLink& link, Dialogs& dialogs, QWidget& window)
    : QObject(&window), document_(document), link_(link), dialogs_(dialogs), window_(window)
{
    connect(&Language::OfProgram(), &Language::Changed, this, [this] {
        if (isRunning_ && !progress_.Text().isEmpty())  // work without parts tells none
            TellProgress();
    });
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
        notes_ << Translated({MESSAGE("%1."), {RepeatNote(repeated_)}});
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
            return Read({MESSAGE("Read Memory (%1)"), {SelectorText(selector)}},
                        {.settings = false, .selector = selector},
                        [selector](ReceiverReader& reader) { return reader.ReadMemory(selector); });
        case Transfer::ReadSettings:
            return Read(MESSAGE("Read Settings"), {.memory = false},
                        [](ReceiverReader& reader) { return reader.ReadSettings(); });
        case Transfer::ReadBankPage:
            return Read(MESSAGE("Read Bank"), {.settings = false, .memory = false, .banks = true},
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
        Read(MESSAGE("Read ALL"), {}, [](ReceiverReader& reader) { return reader.ReadAll(); });
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

TransferResult TransferCommands::Read(const rqm5::Message& name, const TransferScope& scope,
                                      const std::function<TransferResult(ReceiverReader&)>& read)
{
    const CloneImage before = document_.Image();
    const bool hadUnsavedChanges = document_.DataChanged();
    BeginReading(scope);
    std::vector<rqm5::Message> unreadable;
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
void TransferCommands::NameUnreadable(const std::vector<rqm5::Message>& names)
{
    if (names.empty())
        return;
    const rqm5::Message note = UnreadableNote(static_cast<int>(names.size()));
    notes_ << Translated({MESSAGE("%1: %2."), {note, NamedRows(names, kNotedBlocks, ", ")}});
    WarnOfBlocks(tr("Read"), tr("%1. Check the cable, then read again.").arg(Translated(note)), names);
}

/// Names the blocks that a second read brings otherwise. The image keeps the first.
TransferResult TransferCommands::ReadTwice(const std::vector<ExpectedBlock>& blocks)
{
    std::vector<BlockDifference> differences;
    BeginPart();
    AftermathObserver observer(*this, NotReadTwice());
    const TransferResult result = ReadBack(blocks, link_, observer, differences);
    if (result == TransferResult::Cancelled)
        notes_ << Translated(NotReadTwice());
    if (!differences.empty())
        WarnOfBlocks(tr("Verify"),
                     tr("%1. Check the cable, then read again.")
                         .arg(Translated(OtherwiseNote(static_cast<int>(differences.size())))),
                     LabelsOf(differences));
    isReadTwice_ = result == TransferResult::Done && differences.empty();
    return result;
}

void TransferCommands::Stored()
{
    if (reading_ != nullptr)
        reading_->Announce();
}

void TransferCommands::BlockRead(int address, const MemoryBlock& block)
{
    if (address == AreaOf(Area::Settings).address)
        receiver_.Read(block, link_.Port().Device());
}

void TransferCommands::Cancel()
{
    if (!isRunning_)
        return;
    isCancelled_ = true;
    link_.Cancel();
}

void TransferCommands::WarnOfBlocks(const QString& title, const QString& text,
                                    const std::vector<rqm5::Message>& names)
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
