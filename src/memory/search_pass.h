#pragma once

#include <array>

#include "image/clone_image.h"
#include "image/memory_block.h"

namespace rqm5 {

/// `PassData`, the seven Search Pass blocks: the numbers (row - 1100) of the enabled Search Pass rows in row
/// order, one byte each, then FF to the end of the seventh block.
std::array<MemoryBlock, 7> PassData(const CloneImage& image);

/// True when another enabled Search Pass row than the given one holds exactly this frequency.
bool IsSearchPassDuplicate(const CloneImage& image, std::int64_t hertz, int row);

}  // namespace rqm5
