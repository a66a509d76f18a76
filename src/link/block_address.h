#pragma once

#include <optional>
#include <string_view>

#include "language/message.h"

namespace rqm5 {

inline constexpr int kHighestBlockAddress = 0xFFF0;

/// What is wrong with a block address that a person typed, as a sentence; empty when nothing is. An
/// address is hexadecimal in either letter case, with or without "0x", and its last digit is 0.
Message BlockAddressFault(std::string_view typed);

/// The address 0 to 0xFFF0; nothing when BlockAddressFault finds fault with it.
std::optional<int> ReadBlockAddress(std::string_view typed);

}  // namespace rqm5
