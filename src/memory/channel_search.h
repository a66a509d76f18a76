#pragma once

#include <string_view>
#include <vector>

#include "image/clone_image.h"

namespace rqm5 {

/// The memory rows 0 to 1209 in which every word of a query stands, those with the likeliest meaning first:
/// frequencies ("145.62", "145,62", "145625" all begin 145.625 MHz), modes, notes, then CTCSS tones, of which
/// those that the channel uses come first. Letters match in any case. Empty for a query without a word.
std::vector<int> FindChannels(const CloneImage& image, std::string_view query);

/// True when a text stands in another one, letters in any case.
bool HoldsText(std::string_view text, std::string_view part);

}  // namespace rqm5
