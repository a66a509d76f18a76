#pragma once

#include <string>

#include "image/clone_image.h"

namespace rqm5 {

/// Where a memory row 0 to 1239 is, for people: "memory row 12 (Bank 0, channel 12)", "memory row 1001
/// (Program Scan 0B)", "memory row 1105 (Search Pass S5)", "memory row 1203 (Priority Pr3)", "memory row
/// 999 (in no bank)", "memory row 1210 (not in the receiver)".
std::string RowName(const CloneImage& image, int row);

/// The same for a VFO row 0 to 13: "VFO row 3".
std::string VfoRowName(int row);

}  // namespace rqm5
