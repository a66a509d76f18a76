#pragma once

#include <optional>
#include <string_view>

namespace rqm5 {

// The values of a list that somebody typed, whatever program it comes from: how people write modes, steps and
// tones.

/// The codes of a channel's fields as the receiver numbers them; nothing for a text that names none of them.
std::optional<int> ReadMode(std::string_view text);
std::optional<int> ReadStep(std::string_view text);
std::optional<int> ReadOption(std::string_view text);
std::optional<int> ReadSecret(std::string_view text);
std::optional<int> ReadCarrier(std::string_view text);
std::optional<int> ReadTone(std::string_view text);
std::optional<int> ReadShift(std::string_view text);
std::optional<int> ReadMark(std::string_view text);  ///< 0 or 1

}  // namespace rqm5
