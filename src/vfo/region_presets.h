#pragma once

#include <vector>

#include "image/memory_block.h"

namespace rqm5 {

inline constexpr int kPresetVariants = 3;

/// A block that the receiver keeps for its model region.
struct PresetBlock
{
    int place;  ///< blocks behind the first one
    MemoryBlock contents;
};

/// `InitPriset`: the broadcast bands and the television sound carriers of a variant 0 to 2, in the order in
/// which they are sent: 68, 65 or 74 blocks. The user never edits them and they are never read back.
const std::vector<PresetBlock>& InitPriset(int variant);

/// The variant that belongs to a model option: 0 for option 0, 1 for option 1, 2 for every other.
int PresetVariant(int model);

}  // namespace rqm5
