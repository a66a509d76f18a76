#include "app/read_option_items.h"
#include "app/transfer_commands.h"
#include "link/closing_notes.h"
#include "link/expected_memory.h"
#include "link/memory_map.h"
#include "link/receiver_checks.h"
#include "link/write_plan.h"

namespace rqm5 {
namespace {

TransferPart ReadingPart(Work work, const CloneImage& image, const TransferScope& scope)
{
    return {work, BlocksToBackUp(image, scope),
            scope.settings ? AreaOf(Area::Settings).blocks + AreaOf(Area::Vfo).blocks : 0};
}

TransferPart WritingPart(const CloneImage& image, const TransferScope& scope)
{
    const WritePlan plan(image, scope);
    int settings = 0;
    for (const WriteSection& section : plan.Sections())
        if (!section.ofMemory)
            settings += static_cast<int>(section.blocks.size());
    return {Work::Write, plan.BlockCount(), settings};
}

}  // namespace

void TransferCommands::BeginReading(const TransferScope& scope)
{
    std::vector<TransferPart> parts = {ReadingPart(Work::Read, document_.Image(), scope)};
    if (LoadReadTwice())
        parts.push_back(ReadingPart(Work::ReadAgain, document_.Image(), scope));
    progress_.Begin(std::move(parts));
    BeginPart();
}

void TransferCommands::BeginWriting(const TransferScope& scope, bool keepsBackup, bool isVerified)
{
    const CloneImage& image = document_.Image();
    std::vector<TransferPart> parts;
    if (keepsBackup)
        parts.push_back(ReadingPart(Work::Backup, image, scope));
    parts.push_back(WritingPart(image, scope));
    if (isVerified)
        parts.push_back({Work::Verify, static_cast<int>(ExpectedAfterWrite(image, scope).size()), 0});
    progress_.Begin(std::move(parts));
    emit WriteBegan();
}

void TransferCommands::BeginPart()
{
    progress_.NextPart(std::chrono::steady_clock::now());
    emit ProgressTold(progress_.Text(), progress_.Fraction());
}

void TransferCommands::ProgressStarted(int maximum)
{
    progress_.RowsStarted(maximum);
    emit ProgressBegan(maximum);
}

void TransferCommands::ProgressMoved(int value, int row)
{
    progress_.RowMoved(value);
    emit ProgressTold(progress_.Text(), progress_.Fraction());
    emit ProgressAdvanced(value, row);
}

void TransferCommands::BlockDone(int /*address*/, bool /*written*/)
{
    progress_.BlockDone(std::chrono::steady_clock::now());
    emit ProgressTold(progress_.Text(), progress_.Fraction());
}

std::chrono::seconds TransferCommands::Taken() const
{
    return std::chrono::round<std::chrono::seconds>(std::chrono::steady_clock::now() - begin_ - asked_);
}

void TransferCommands::NoteRead(TransferResult result, const TransferScope& scope, const CloneImage& before,
                                bool hadUnsavedChanges)
{
    const ImageChange change = Difference(before, document_.Image());
    if (hadUnsavedChanges && !change.IsEmpty())
        notes_.prepend(tr("You had unsaved changes; Undo brings back what was there before the read."));
    if (result == TransferResult::Done)
        notes_.prepend(
            QString::fromStdString(ReadNote(Taken(), isReadTwice_, scope, document_.Image(), change)) +
            QLatin1Char('.'));
}

void TransferCommands::NoteWritten(TransferResult result, bool isVerified)
{
    if (result != TransferResult::Done)
        return;
    const QString note = QString::fromStdString(WrittenNote(Taken(), isVerified_));
    notes_.prepend(isVerified && !isVerified_ ? tr("%1, but the receiver holds something else.").arg(note)
                                              : note + QLatin1Char('.'));
}

QMessageBox::StandardButton TransferCommands::Ask(const Prompt& prompt)
{
    emit Asking(prompt.details.isEmpty() ? prompt.text : prompt.text + QStringLiteral(" ") + prompt.details);
    const auto shown = std::chrono::steady_clock::now();
    const QMessageBox::StandardButton answer = dialogs_.Ask(&window_, prompt);
    asked_ += std::chrono::steady_clock::now() - shown;
    return answer;
}

}  // namespace rqm5
