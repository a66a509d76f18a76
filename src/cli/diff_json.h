#pragma once

#include <iosfwd>

#include "image/image_change.h"

namespace rqm5 {

/// What differs between two images as one JSON text, each value before and after.
void WriteChange(const CloneImage& before, const CloneImage& after, const ImageChange& change,
                 std::ostream& out);

}  // namespace rqm5
