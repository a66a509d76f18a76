#pragma once

#include <cstdint>
#include <vector>

#include "image/clone_image.h"

namespace rqm5 {

/// A frequency and the memory rows that hold it, rising.
struct RepeatedFrequency
{
    std::int64_t frequency;  ///< hertz
    std::vector<int> rows;
};

/// Every frequency that more than one memory row 0 to 1209 holds, the lowest first.
std::vector<RepeatedFrequency> RepeatedFrequencies(const CloneImage& image);

/// For each memory row 0 to 1209 whether another one has its frequency and its mode.
std::vector<bool> DuplicateRows(const CloneImage& image);

}  // namespace rqm5
