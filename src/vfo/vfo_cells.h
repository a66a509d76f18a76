#pragma once

#include <string>

#include "image/clone_image.h"

namespace rqm5 {

/// The title row of the VFO table, columns separated by "|"; the first is the label column.
inline constexpr std::string_view kVfoTitles =
    "|Frequency|Mode|Step|Option|Scrt|Carrier|Tone|Shift|ShiftFreq.|Note";

/// What the VFO table shows for VFO row 0 to 13 in text column 0 to 9: the stored text, or "-" for what
/// the model region does not have (region 0 no secret code, the others no carrier, regions 2 and 3
/// neither and only 8 bands).
std::string VfoCell(const CloneImage& image, int row, std::size_t column);

}  // namespace rqm5
