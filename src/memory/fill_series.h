#pragma once

#include "memory/paste_plan.h"

namespace rqm5 {

/// Channels at even distances.
struct FillSeries
{
    std::int64_t start = 0;    ///< hertz
    std::int64_t spacing = 0;  ///< hertz, may be negative
    int count = 0;
    Channel like;               ///< what they are like besides; without a frequency: as usual on theirs
    bool skipsOccupied = true;  ///< only empty rows are filled
};

/// How many channels there are from a start up or down to a last frequency, 0 when the spacing does not lead
/// there.
int CountUpTo(std::int64_t start, std::int64_t spacing, std::int64_t last);

/// Plans the channels of a series into rows of a range, from a row on.
PastePlan PlanSeries(const CloneImage& image, RowRange rows, int from, const FillSeries& series);

}  // namespace rqm5
