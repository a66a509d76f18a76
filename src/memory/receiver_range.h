#pragma once

#include <string_view>
#include <vector>

#include "image/clone_image.h"
#include "language/message.h"

namespace rqm5 {

inline constexpr char kReceiverRangeText[] = MESSAGE("0.1 to 1299.995 MHz");

bool IsInReceiverRange(std::int64_t hertz);

/// The memory rows among these whose frequency the receiver does not take, each with it: "memory row 3
/// (Bank 0, channel 3): 2400.000000 MHz".
std::vector<Message> RowsOutOfRange(const CloneImage& image, RowRange rows);

/// The same of the VFO rows that the model has.
std::vector<Message> VfoRowsOutOfRange(const CloneImage& image);

}  // namespace rqm5
