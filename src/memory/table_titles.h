#pragma once

#include <string_view>

namespace rqm5 {

/// The title row of the memory table, columns separated by "|"; the first is the label column.
inline constexpr std::string_view kMemoryTitles =
    "|Frequency|Mode|Step|Option|Skip|Carrier|Tone|Shift|ShiftFreq.|Note";

}  // namespace rqm5
