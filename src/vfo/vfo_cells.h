#pragma once

#include <string>

#include "image/clone_image.h"

namespace rqm5 {

/// The title row of the VFO table, columns separated by "|"; the first is the label column.
inline constexpr std::string_view kVfoTitles =
    "|Frequency|Mode|Step|Option|Scrt|Carrier|Tone|Shift|ShiftFreq.|Note";

/// What the VFO table shows for VFO row 0 to 13: the text, or "-" for what the model region does not have
/// and in the rows of bands that it lacks.
std::string VfoCell(const CloneImage& image, int row, Column column);

}  // namespace rqm5
