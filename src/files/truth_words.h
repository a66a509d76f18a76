#pragma once

#include <optional>
#include <string_view>

namespace rqm5 {

/// What a cell says that is on or off: #TRUE# as this program writes it, 1, -1, yes, and what spreadsheets
/// write in German, French, Spanish and Italian, in any letter case. Nothing for a text that says neither.
std::optional<bool> TruthOf(std::string_view text);

}  // namespace rqm5
