#include "link/reply_frames.h"

namespace rqm5 {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

bool EndsReply(std::string_view received, std::size_t endsFrom)
{
    return received.size() >= endsFrom && received.ends_with(kLineEnd);
}

std::string ReadReply(std::string_view received)
{
    if (received.size() < kFrameLength)
        return kReadTooShort;
    received.remove_prefix(received.size() - kFrameLength);
    const bool isFrame = received.starts_with(kLineEnd) && received.ends_with(kLineEnd);
    return isFrame ? std::string(received) : kReadNoFrame;
}

int WriteReply(std::string_view received)
{
    if (received.size() < kAcknowledgementLength)
        return kWriteTooShort;
    return received.ends_with("\r\nOK\r\n") ? kWriteOk : kWriteNotOk;
}

}  // namespace rqm5
