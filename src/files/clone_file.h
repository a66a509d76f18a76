#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "image/clone_image.h"
#include "language/message.h"

namespace rqm5 {

/// The whole text of a clone file (2530 lines, CR LF, UTF-8).
std::string FormatCloneFile(const CloneImage& image);

/// Why a text is no clone file. Nothing was changed.
struct ParseError
{
    int line;        ///< counted from 1; 0 when no single line is to blame
    Message reason;  ///< and what to do about it
};

/// Reads the text of a clone file (UTF-8, or code page 932 when it is not valid UTF-8) into the image.
/// A refused text leaves the image as it was.
std::optional<ParseError> ParseCloneFile(std::string_view text, CloneImage& image);

/// The rows whose notes a clone file cannot bring back ("memory row 12 (Bank 0, channel 12)", ...): a
/// comma or quotes make such a note unreadable or different.
std::vector<Message> NotesThatDoNotSurvive(const CloneImage& image);

}  // namespace rqm5
