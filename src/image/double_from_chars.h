#pragma once

#include <charconv>

namespace rqm5 {

/// std::from_chars for a double, which some C++ libraries have for whole numbers only.
std::from_chars_result DoubleFromChars(const char* first, const char* last, double& value);

}  // namespace rqm5
