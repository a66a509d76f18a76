#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace rqm5 {

/// What reading a block gives instead of a frame.
inline constexpr char kReadPortFailed[] = "ERROR00";
inline constexpr char kReadTooShort[] = "ERROR01";
inline constexpr char kReadNoFrame[] = "ERROR02";

/// What writing a block gives.
enum WriteCode { kWriteOk = 0, kWriteNotOk = 1, kWriteTooShort = 2, kWritePortFailed = 3 };

inline constexpr std::size_t kFrameLength = 36;            ///< CR LF + 32 characters + CR LF
inline constexpr std::size_t kAcknowledgementLength = 46;  ///< the echoed command and CR LF "OK" CR LF

/// True when nothing more can be expected: at least endsFrom characters, the last two CR LF.
bool EndsReply(std::string_view received, std::size_t endsFrom);

/// The reply to a read command within all that was received: its last 36 characters when CR LF stand at
/// their both ends, else "ERROR01" (fewer than 36) or "ERROR02". The 32 characters between are taken as
/// they came.
std::string ReadReply(std::string_view received);

/// The answer to a write command within all that was received: 0 when it ends in CR LF "OK" CR LF, 1 when
/// it does not, 2 when there are fewer than 46 characters.
int WriteReply(std::string_view received);

/// How many whole replies stand in a text, to either kind of command, echoes and noise between them.
int CountReplies(std::string_view text);

}  // namespace rqm5
