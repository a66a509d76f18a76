#pragma once

#include <array>
#include <span>

#include "image/clone_image.h"
#include "image/memory_block.h"

namespace rqm5 {

/// `ExtraData`, the ten flag blocks: a bit for each memory row, most significant bit first, which
/// is MemEnable; the last 40 bits are 0.
std::array<MemoryBlock, 10> ExtraData(const CloneImage& image);

/// One of these blocks, 0 to 9.
MemoryBlock FlagBlock(const CloneImage& image, int index);

/// Ten blocks into the flags of the 1240 memory rows.
void DecodeExtraData(CloneImage& image, std::span<const MemoryBlock> blocks);

/// `BankFlagData`: BankLink as 14 hex digits, filled up with "F".
MemoryBlock BankFlagData(const CloneImage& image);
void DecodeBankFlagData(CloneImage& image, const MemoryBlock& block);

}  // namespace rqm5
