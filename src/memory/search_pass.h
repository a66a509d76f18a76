#pragma once

#include "image/clone_image.h"

namespace rqm5 {

/// Builds PassData, the seven Search Pass blocks: the numbers (row - 1100) of the enabled Search Pass
/// rows in row order, one byte each, then FF to the end of the seventh block.
void BuildPassData(CloneImage& image);

/// True when another enabled Search Pass row than the given one holds exactly this frequency.
bool IsSearchPassDuplicate(const CloneImage& image, double frequency, int row);

}  // namespace rqm5
