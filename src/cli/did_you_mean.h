#pragma once

#include <span>
#include <string>
#include <string_view>

namespace rqm5 {

/// `; did you mean "read"?` with the known word that is nearest to a mistyped one; empty when none is near.
std::string DidYouMean(std::string_view typed, std::span<const std::string_view> known);

}  // namespace rqm5
