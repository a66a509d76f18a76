#pragma once

#include "image/clone_image.h"

namespace rqm5 {

/// Empties rows, links and banks as at start-up: all rows empty and off, no links, the default bank
/// sizes 200, 150, 150, 100, 100, 50, 80, 70, 50, 50 and none unassigned.
void BuildEmptyImage(CloneImage& image);

/// Empties rows, links and banks as New does: all bank sizes 0 and 1000 channels unassigned.
void ClearForNew(CloneImage& image);

}  // namespace rqm5
