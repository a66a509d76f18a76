#pragma once

#include <string>
#include <string_view>

namespace rqm5 {

/// The text of a file as UTF-8. A byte order mark at its start is skipped. Bytes that are not valid UTF-8
/// are taken for code page 932, in which older files keep their notes; what is invalid there too becomes
/// U+FFFD. Never fails.
std::string DecodeFileText(std::string_view bytes);

/// The same from an encoding that somebody names, one in which plain bytes stand for plain characters.
std::string ConvertedText(std::string_view bytes, const std::string& encoding);
bool CanConvert(const std::string& encoding);

}  // namespace rqm5
