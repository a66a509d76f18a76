#include "cli/progress_bar.h"

#include <algorithm>
#include <ostream>

#include "image/display_text.h"
#include "language/translated.h"
#include "link/closing_notes.h"

namespace rqm5 {
namespace {

constexpr int kWidestBar = 40;
constexpr int kNarrowestBar = 10;
/// Often enough to look alive, seldom enough to cost nothing.
constexpr std::chrono::milliseconds kRedraw{100};

std::string Padded(int number, std::size_t digits)
{
    std::string text = std::to_string(number);
    return text.size() < digits ? std::string(digits - text.size(), ' ') + text : text;
}

}  // namespace

std::string ProgressLine(int done, int total, int row, std::optional<std::chrono::seconds> left, int columns)
{
    const int percent = total > 0 ? std::clamp(done * 100 / total, 0, 100) : 0;
    std::string text = Padded(percent, 3) + " %";
    if (row >= 0)
        text += "  " + Said({MESSAGE("row %1"), {Padded(row, 4)}});
    if (left)
        text += "  " + Said({MESSAGE("%1 left"), {TimeText(*left)}});
    const int room = std::min(columns - DisplayWidth(text) - 3, kWidestBar);
    if (room < kNarrowestBar)
        return std::string(CutToWidth(text, std::max(columns, 0)));
    const auto filled = static_cast<std::size_t>(room * percent / 100);
    return '[' + std::string(filled, '#') + std::string(static_cast<std::size_t>(room) - filled, '.') + "] " +
           text;
}

void ProgressBar::Begin(int expectedBlocks)
{
    total_ = expectedBlocks;
    done_ = 0;
    maximum_ = 0;
    row_ = -1;
}

void ProgressBar::ProgressMoved(int value, int row)
{
    row_ = row;
    // Rows come last, so from here on what is left is known: the receiver may have other bank sizes than
    // the image the estimate was made from.
    total_ = done_ + maximum_ - value + 1;
}

void ProgressBar::BlockDone(int /*address*/, bool /*written*/)
{
    if (++done_ == 1)
        first_ = Clock::now();
    if (console_.progressColumns > 0 && !console_.isQuiet && Clock::now() - drawn_ >= kRedraw)
        Draw();
}

void ProgressBar::Message(const Problem& problem)
{
    Clear();
    Problem named = problem;
    // A failure of the port itself begins with the device.
    if (!portName_.empty())
        named.details =
            problem.text == kComPortError
                ? rqm5::Message::List({portName_, problem.details}, ", ")
                : rqm5::Message(MESSAGE("%1: %2"), {portName_ + ", " + portDevice_, problem.details});
    Report(console_, named);
}

std::optional<std::chrono::seconds> ProgressBar::TimeLeft() const
{
    if (done_ < 2)
        return std::nullopt;
    const int blocksLeft = std::max(total_ - done_, 0);
    return std::chrono::ceil<std::chrono::seconds>((drawn_ - first_) * blocksLeft / (done_ - 1));
}

void ProgressBar::Draw()
{
    drawn_ = Clock::now();
    const std::string line = ProgressLine(done_, total_, row_, TimeLeft(), console_.progressColumns - 1);
    const auto columns = DisplayWidth(line);
    console_.err << '\r' << line
                 << std::string(static_cast<std::size_t>(std::max(drawnColumns_ - columns, 0)), ' ')
                 << std::flush;
    drawnColumns_ = std::max(columns, drawnColumns_);
}

void ProgressBar::Clear()
{
    if (drawnColumns_ > 0)
        console_.err << '\r' << std::string(static_cast<std::size_t>(drawnColumns_), ' ') << '\r'
                     << std::flush;
    drawnColumns_ = 0;
}

}  // namespace rqm5
