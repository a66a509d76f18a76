#pragma once

#include <string>
#include <string_view>

namespace rqm5 {

/// The text of a file as UTF-8. A byte order mark at its start is skipped. Bytes that are not valid UTF-8
/// are taken for code page 932, in which older files keep their notes; what is invalid there too becomes
/// U+FFFD. Never fails.
std::string DecodeFileText(std::string_view bytes);

}  // namespace rqm5
