#pragma once

#include "image/clone_image.h"

namespace rqm5 {

/// VFO row 0 to 13 as a model region 0 to 3 starts with it.
Channel DefaultVfoRow(int region, int row);

/// Fills all 14 VFO rows, notes included, with the defaults of the selected model region.
void BuildVfoDefaults(CloneImage& image);

}  // namespace rqm5
