#pragma once

#include <string>

#include "language/message.h"

namespace rqm5 {

/// Why an operation did not do what it was asked to: the text of the message box, and everything else
/// that is known. Texts are UTF-8.
struct Problem
{
    std::string text;  ///< fixed: "COM Port Error", "Communication Error", "Data Error", "File Open Error"
    Message details;   ///< what failed, why, and what to do about it
    Message aftermath = {};    ///< how far an operation came: what the receiver holds now; may be empty
    std::string command = {};  ///< for a terminal: what the details advise; may be empty
};

inline constexpr char kComPortError[] = "COM Port Error";
inline constexpr char kCommunicationError[] = "Communication Error";
inline constexpr char kDataError[] = "Data Error";
inline constexpr char kFileOpenError[] = "File Open Error";

}  // namespace rqm5
