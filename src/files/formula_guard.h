#pragma once

#include <string>
#include <string_view>

namespace rqm5 {

/// True for a text that a spreadsheet would run as a formula: it begins with "=", "+", "-", "@" or a tab.
bool LooksLikeFormula(std::string_view text);

/// A text that no spreadsheet runs: an apostrophe stands before what looks like a formula.
std::string WithGuard(std::string_view text);

/// The text as it was before.
std::string WithoutGuard(std::string_view text);

}  // namespace rqm5
