#include "app/transfer_progress.h"

#include <algorithm>

#include "link/closing_notes.h"

namespace rqm5 {
namespace {

/// Fewer say nothing about the pace.
constexpr int kMeasuredBlocks = 3;

struct WorkTexts
{
    Work work;
    const char* settings;
    const char* banks;
    const char* rows;
};

constexpr WorkTexts kTexts[] = {
    {Work::Read, QT_TRANSLATE_NOOP("TransferProgress", "Reading settings and VFO bands"),
     QT_TRANSLATE_NOOP("TransferProgress", "Reading banks and flags"),
     QT_TRANSLATE_NOOP("TransferProgress", "Reading channels")},
    {Work::ReadAgain, QT_TRANSLATE_NOOP("TransferProgress", "Reading again to compare"),
     QT_TRANSLATE_NOOP("TransferProgress", "Reading again to compare"),
     QT_TRANSLATE_NOOP("TransferProgress", "Reading again to compare")},
    {Work::Backup, QT_TRANSLATE_NOOP("TransferProgress", "Backup of settings and VFO bands"),
     QT_TRANSLATE_NOOP("TransferProgress", "Backup of banks and flags"),
     QT_TRANSLATE_NOOP("TransferProgress", "Backup of channels")},
    {Work::Write, QT_TRANSLATE_NOOP("TransferProgress", "Writing settings and VFO bands"),
     QT_TRANSLATE_NOOP("TransferProgress", "Writing banks and flags"),
     QT_TRANSLATE_NOOP("TransferProgress", "Writing channels")},
    {Work::Verify, QT_TRANSLATE_NOOP("TransferProgress", "Verifying"),
     QT_TRANSLATE_NOOP("TransferProgress", "Verifying"), QT_TRANSLATE_NOOP("TransferProgress", "Verifying")},
};

/// A time that is far away goes in steps of five seconds, so that it does not jump about.
std::chrono::seconds Calm(std::chrono::seconds left)
{
    constexpr int kStep = 5;
    const auto seconds = left.count();
    return std::chrono::seconds(seconds > 2 * kStep ? (seconds + kStep / 2) / kStep * kStep : seconds);
}

}  // namespace

void TransferProgress::Begin(std::vector<TransferPart> parts)
{
    *this = {};
    parts_ = std::move(parts);
}

void TransferProgress::NextPart(Clock::time_point now)
{
    if (next_ < parts_.size())
        leftInPart_ = parts_[next_++].blocks;
    doneInPart_ = 0;
    row_ = maximum_ = -1;
    last_ = now;
}

void TransferProgress::RowsStarted(int maximum)
{
    maximum_ = maximum;
    row_ = -1;
}

void TransferProgress::RowMoved(int value)
{
    row_ = value;
    // Rows come last, so that what is left of the part is known for certain now.
    leftInPart_ = maximum_ - value + 1;
}

void TransferProgress::BlockDone(Clock::time_point now)
{
    if (doneInPart_ > 0) {
        spent_ += now - last_;
        ++measured_;
    }
    last_ = now;
    ++done_;
    ++doneInPart_;
    leftInPart_ = std::max(leftInPart_ - 1, 0);
}

int TransferProgress::BlocksLeft() const
{
    int left = leftInPart_;
    for (std::size_t part = next_; part < parts_.size(); ++part)
        left += parts_[part].blocks;
    return left;
}

QString TransferProgress::Where() const
{
    const TransferPart& part = parts_[next_ - 1];
    const auto* texts = std::ranges::find(kTexts, part.work, &WorkTexts::work);
    if (row_ >= 0)
        return tr("%1: %2 of %3").arg(tr(texts->rows)).arg(row_ + 1).arg(maximum_ + 1);
    if (maximum_ < 0 && doneInPart_ < part.settingsBlocks)
        return tr("%1: %2 of %3").arg(tr(texts->settings)).arg(doneInPart_ + 1).arg(part.settingsBlocks);
    return tr(texts->banks);
}

QString TransferProgress::Text() const
{
    if (next_ == 0)
        return {};
    if (measured_ < kMeasuredBlocks)
        return Where();
    const auto left = std::chrono::ceil<std::chrono::seconds>(spent_ * BlocksLeft() / measured_);
    return tr("%1, about %2 left").arg(Where(), QString::fromStdString(TimeText(Calm(left))));
}

double TransferProgress::Fraction() const
{
    const int all = done_ + BlocksLeft();
    return all == 0 ? 0 : static_cast<double>(done_) / all;
}

}  // namespace rqm5
