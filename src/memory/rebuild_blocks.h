#pragma once

#include "image/clone_image.h"

namespace rqm5 {

/// Makes the block texts of settings, enable flags, bank sizes and bank links anew from what the image
/// holds, as a file and the receiver take them. The Search Pass list is built where it is sent.
void RebuildBlocks(CloneImage& image);

}  // namespace rqm5
