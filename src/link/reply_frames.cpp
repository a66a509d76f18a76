#include "link/reply_frames.h"

#include <algorithm>

namespace rqm5 {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kWordLength = 2;  ///< "OK" and its like

/// The length of the reply that a text begins with; 0 when it begins with none.
std::size_t ReplyLength(std::string_view text)
{
    for (const std::size_t payload : {kFrameLength - 2 * kLineEnd.size(), kWordLength}) {
        const std::size_t end = kLineEnd.size() + payload;
        const bool isBracketed = text.starts_with(kLineEnd) && text.size() >= end + kLineEnd.size() &&
                                 text.substr(end).starts_with(kLineEnd);
        if (isBracketed && text.substr(kLineEnd.size(), payload).find_first_of(kLineEnd) == text.npos)
            return end + kLineEnd.size();
    }
    return 0;
}

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

int CountReplies(std::string_view text)
{
    int replies = 0;
    for (text.remove_prefix(std::min(text.find(kLineEnd), text.size())); !text.empty();
         text.remove_prefix(std::min(text.find(kLineEnd), text.size()))) {
        const std::size_t length = ReplyLength(text);
        replies += length > 0 ? 1 : 0;
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return replies;
}

}  // namespace rqm5
