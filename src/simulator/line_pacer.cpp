#include "simulator/line_pacer.h"

#include <algorithm>

namespace rqm5 {
namespace {

constexpr std::size_t kGroup = 16;
constexpr std::int64_t kBitsPerCharacter = 10;
constexpr std::int64_t kNanoseconds = 1'000'000'000;

}  // namespace

LinePacer::LinePacer(int baud) : characterTime_(baud > 0 ? kBitsPerCharacter * kNanoseconds / baud : 0) {}

void LinePacer::Add(const Answer& answer, Clock::time_point start)
{
    start = std::max(start, lineFree_) + answer.stall;
    AddGroups(answer.echo, start);
    lineFree_ = start + static_cast<std::int64_t>(answer.length) * characterTime_;
    for (const ReplyPiece& piece : answer.reply) {
        lineFree_ += piece.pause;
        AddGroups(piece.text, lineFree_);
        lineFree_ += static_cast<std::int64_t>(piece.text.size()) * characterTime_;
    }
}

void LinePacer::AddGroups(const std::string& text, Clock::time_point start)
{
    for (std::size_t first = 0; first < text.size(); first += kGroup) {
        const std::size_t end = std::min(first + kGroup, text.size());
        groups_.push_back(
            {start + static_cast<std::int64_t>(end) * characterTime_, text.substr(first, end - first)});
    }
}

std::optional<LinePacer::Clock::time_point> LinePacer::NextDue() const
{
    return groups_.empty() ? std::nullopt : std::optional(groups_.front().due);
}

std::string LinePacer::TakeDue(Clock::time_point now)
{
    std::string text;
    while (!groups_.empty() && groups_.front().due <= now) {
        text += groups_.front().text;
        groups_.pop_front();
    }
    return text;
}

}  // namespace rqm5
