#pragma once

#include <vector>

#include "image/image_change.h"
#include "language/message.h"

namespace rqm5 {

/// A change in words, one line each: "Lamp: OFF -> ON", "memory row 12 (Bank 0, channel 12): Mode FM -> AM,
/// Note \"old\" -> \"new\"", "Bank 3 size: 50 -> 60". Rows are named by the banks of the image before it.
std::vector<Message> DescribeChange(const CloneImage& before, const ImageChange& change);

}  // namespace rqm5
