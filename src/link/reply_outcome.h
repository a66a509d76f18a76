#pragma once

#include <string_view>

namespace rqm5 {

/// What became of one command.
enum class ReplyOutcome {
    Good,
    Nothing,     ///< no character came back
    TooShort,    ///< too few characters
    Garbled,     ///< enough of them, but not in the form of a reply
    NotOk,       ///< the receiver answered another word than OK
    NotOpened,   ///< the port could not be opened: nothing left the computer
    PortFailed,  ///< the port went away
    Restless,    ///< not sent: the line did not fall silent after replies had been missing
};

inline bool IsPortFailure(ReplyOutcome outcome)
{
    return outcome == ReplyOutcome::NotOpened || outcome == ReplyOutcome::PortFailed;
}

/// What the word of a read ("ERROR00" to "ERROR02", or a frame) means.
/// \param received  all that came back
/// \param isGone    the port had been open
ReplyOutcome OutcomeOfRead(std::string_view reply, std::string_view received, bool isGone);

/// What the code of a write (0 to 3) means.
ReplyOutcome OutcomeOfWrite(int code, std::string_view received, bool isGone);

}  // namespace rqm5
