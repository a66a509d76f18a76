#pragma once

#include <cstdint>
#include <string_view>

#include "image/clone_image.h"

namespace rqm5::fuzz {

/// Ends the program when an image breaks a rule that no input may break: every setting and bank size in
/// range, the banks within 1000 channels.
void RequireSoundImage(const CloneImage& image);

/// Ends the program when the settings are out of their ranges.
void RequireSoundSettings(const ReceiverSettings& settings);

/// What was imported into a row must fit into a block, or the next save would lose it.
void RequireEncodable(const ChannelContents& contents, RowKind kind);

/// The settings as their own blocks give them back: a mode that is none of the three is sent as VFO, and the
/// first two models have a fixed count of Search Pass channels.
ReceiverSettings AsSent(ReceiverSettings settings);

/// Picks one input of so many for a costly check, the same ones in every run.
bool IsPicked(std::string_view input, std::uint32_t oneIn);

}  // namespace rqm5::fuzz
