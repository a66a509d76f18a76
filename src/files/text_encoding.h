#pragma once

#include <string>
#include <string_view>

namespace rqm5 {

/// The text of a file as UTF-8. A byte order mark at its start is skipped. Bytes that are not valid UTF-8
/// are taken for code page 932, in which older files keep their notes; what is invalid there too becomes
/// U+FFFD. Never fails.
std::string DecodeFileText(std::string_view bytes);

/// True for well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool IsValidUtf8(std::string_view text);

/// How many characters a UTF-8 text has.
std::size_t CharacterCount(std::string_view text);

}  // namespace rqm5
