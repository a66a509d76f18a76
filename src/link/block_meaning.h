#pragma once

#include <string>
#include <vector>

#include "image/clone_image.h"

namespace rqm5 {

/// What the receiver keeps at a block address: "settings 1", "bank sizes", "VFO row 3", "memory row 12
/// (Bank 0, channel 12)", ... Empty where nothing is known. Banks are divided as the image says.
std::string BlockName(const CloneImage& image, int address);

struct BlockField
{
    std::string name;
    std::string text;
};

/// The decoded fields of a channel or VFO block, in the order of the tables. None for any other address,
/// and none for an empty block.
std::vector<BlockField> BlockFields(int address, const MemoryBlock& block);

/// True when the address is that of a channel or a VFO row, whose blocks decode into fields.
bool HoldsFields(int address);

}  // namespace rqm5
