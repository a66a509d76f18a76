#pragma once

#include <array>
#include <string>

namespace rqm5 {

inline constexpr int kPresetVariants = 3;
inline constexpr int kPresetEntries = 81;

/// Complete write commands without their carriage return; unused entries are empty texts.
using PresetTable = std::array<std::array<std::string, kPresetEntries>, kPresetVariants>;

/// How many commands each variant has, from entry 0 on.
inline constexpr std::array<int, kPresetVariants> kPresetCount = {68, 65, 74};

/// Builds `PresetCmd`: the broadcast bands and the television sound carriers that the receiver keeps for
/// its region from block 0560 on. The user never edits them and they are never read back.
PresetTable InitPriset();

/// The variant that belongs to a model option: 0 for option 0, 1 for option 1, 2 for every other.
int PresetVariant(int model);

}  // namespace rqm5
