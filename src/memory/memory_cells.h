#pragma once

#include <string>

#include "image/clone_image.h"

namespace rqm5 {

/// The title row of the memory table, columns separated by "|"; the first is the label column.
inline constexpr std::string_view kMemoryTitles =
    "|Frequency|Mode|Step|Option|Skip|Carrier|Tone|Shift|ShiftFreq.|Note";

/// What the memory table shows for a memory row in text column 0 to 9, with what the model region puts in
/// place of the stored text: the skip mark "*" in the fifth column (regions 1 to 3), "-" for the carrier
/// (regions 2 and 3).
std::string MemoryCell(const CloneImage& image, int row, std::size_t column);

}  // namespace rqm5
