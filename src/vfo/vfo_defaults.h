#pragma once

#include "image/clone_image.h"

namespace rqm5 {

/// Fills all 14 VFO rows, notes included, with the defaults of the selected model region.
void BuildVfoDefaults(CloneImage& image);

}  // namespace rqm5
