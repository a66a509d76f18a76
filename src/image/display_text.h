#pragma once

#include <string>
#include <string_view>

namespace rqm5 {

/// Text from a file, a file name or the wire as it may be shown: control characters, characters that turn
/// the writing direction and bytes that are no UTF-8 become visible ("\r", "\x1B", "\u202E"). All else
/// stays as it is, so the result is one line of valid UTF-8.
std::string VisibleText(std::string_view text);

/// How many columns a UTF-8 text takes in a fixed-pitch font: 2 for an East Asian wide character, 0 for a
/// combining one, else 1.
int DisplayWidth(std::string_view text);

/// The longest beginning of a UTF-8 text that takes at most this many columns.
std::string_view CutToWidth(std::string_view text, int columns);

/// The text filled up with blanks to this many columns; a longer one stays as it is.
std::string PadToWidth(std::string_view text, int columns);

}  // namespace rqm5
