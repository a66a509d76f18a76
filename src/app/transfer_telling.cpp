#include "app/read_option_items.h"
#include "app/transfer_commands.h"
#include "language/translated.h"
#include "link/closing_notes.h"
#include "link/expected_memory.h"
#include "link/forwarding_observer.h"
#include "link/memory_map.h"
#include "link/receiver_checks.h"
#include "link/separate_read.h"
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

/// The pages show the open image, which such a read is not about.
class BesideObserver : public ForwardingObserver
{
  public:
    using ForwardingObserver::ForwardingObserver;

    void GroupChosen(int /*selector*/) override {}
};

}  // namespace

TransferResult TransferCommands::ReadBeside(CloneImage& image)
{
    return RunParts({ReadingPart(Work::Read, document_.Image(), {})}, [&] {
        BeginPart();
        BesideObserver observer(*this);
        const TransferResult result = ReadSeparately(link_, observer, image);
        if (result != TransferResult::Done)
            return result;
        KeepLastRead(image);
        notes_.prepend(tr("Read in %1 to compare; the open image is as it was.")
                           .arg(QString::fromStdString(TimeText(Taken()))));
        return result;
    });
}

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
    const CloneImage& image = Source();
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
    TellProgress();
}

void TransferCommands::TellProgress()
{
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
    TellProgress();
    emit ProgressAdvanced(value, row);
}

void TransferCommands::BlockDone(int /*address*/, bool /*written*/)
{
    progress_.BlockDone(std::chrono::steady_clock::now());
    TellProgress();
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
        notes_.prepend(Translated(
            {MESSAGE("%1."), {ReadNote(Taken(), isReadTwice_, scope, document_.Image(), change)}}));
}

void TransferCommands::NoteWritten(TransferResult result, bool isVerified)
{
    if (result != TransferResult::Done)
        return;
    notes_.prepend(Translated(
        {isVerified && !isVerified_ ? MESSAGE("%1, but the receiver holds something else.") : MESSAGE("%1."),
         {WrittenNote(Taken(), isVerified_)}}));
}

int TransferCommands::Run(QDialog& dialog)
{
    emit Asking(dialog.windowTitle());
    const auto shown = std::chrono::steady_clock::now();
    const int answer = dialogs_.Run(dialog);
    asked_ += std::chrono::steady_clock::now() - shown;
    return answer;
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
