#include "link/reply_outcome.h"

#include "link/reply_frames.h"

namespace rqm5 {
namespace {

ReplyOutcome PortOutcome(bool isGone)
{
    return isGone ? ReplyOutcome::PortFailed : ReplyOutcome::NotOpened;
}

ReplyOutcome ShortOutcome(std::string_view received)
{
    return received.empty() ? ReplyOutcome::Nothing : ReplyOutcome::TooShort;
}

/// A word of two letters between line ends is the receiver's own answer; anything else is the line's.
bool EndsInAnswer(std::string_view received)
{
    constexpr std::size_t kAnswerLength = 6;
    const std::string_view end = received.substr(received.size() - kAnswerLength);
    return end.starts_with("\r\n") && end.ends_with("\r\n");
}

}  // namespace

ReplyOutcome OutcomeOfRead(std::string_view reply, std::string_view received, bool isGone)
{
    if (reply == kReadPortFailed)
        return PortOutcome(isGone);
    if (reply == kReadTooShort)
        return ShortOutcome(received);
    return reply == kReadNoFrame ? ReplyOutcome::Garbled : ReplyOutcome::Good;
}

ReplyOutcome OutcomeOfWrite(int code, std::string_view received, bool isGone)
{
    switch (code) {
        case kWriteOk:
            return ReplyOutcome::Good;
        case kWritePortFailed:
            return PortOutcome(isGone);
        case kWriteTooShort:
            return ShortOutcome(received);
        default:
            return EndsInAnswer(received) ? ReplyOutcome::NotOk : ReplyOutcome::Garbled;
    }
}

}  // namespace rqm5
