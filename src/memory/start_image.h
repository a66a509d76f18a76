#pragma once

#include "image/clone_image.h"

namespace rqm5 {

/// The image as the program starts with it: default settings and VFO bands of a model option (0 to 3),
/// empty rows, default bank sizes.
CloneImage StartUpImage(int model);

/// What New does to the image: settings and VFO bands to the defaults of the selected model, all rows,
/// notes, banks and links emptied, 1000 channels unassigned.
void NewImage(CloneImage& image);

}  // namespace rqm5
