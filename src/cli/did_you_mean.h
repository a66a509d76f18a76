#pragma once

#include <span>
#include <string_view>

#include "language/message.h"

namespace rqm5 {

/// What is wrong with a mistyped word, and the known word that is nearest to it: `unknown command "raed"; did
/// you mean "read"?` The fault alone when none is near.
Message DidYouMean(const Message& fault, std::string_view typed, std::span<const std::string_view> known);

}  // namespace rqm5
