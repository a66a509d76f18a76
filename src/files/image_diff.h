#pragma once

#include <string>
#include <vector>

#include "image/clone_image.h"

namespace rqm5 {

/// What differs between two images, one line each, in words: "Lamp: OFF -> ON", "memory row 12 (Bank 0,
/// channel 12): Mode FM -> AM, Note \"old\" -> \"new\"", "Bank 3 size: 50 -> 60". Rows are named by the
/// banks of the first image. Empty exactly when SameContents holds (bank texts follow the sizes).
std::vector<std::string> DescribeDifferences(const CloneImage& a, const CloneImage& b);

}  // namespace rqm5
