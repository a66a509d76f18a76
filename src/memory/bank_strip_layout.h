#pragma once

#include <vector>

#include "memory/bank_fill.h"

namespace rqm5 {

/// A bank, or the rows in no bank (kUnassigned), as a part of a strip.
struct StripSegment
{
    int bank;
    double left;
    double width;
    Fill fill;
};

/// The banks that have rows, in their order, then the rows in no bank: each as wide as it has rows, and never
/// narrower than can be seen and hit, as long as there is room for that.
std::vector<StripSegment> LayOutBanks(const CloneImage& image, double width, double least);

/// The segment at a place of the strip, nullptr for none.
const StripSegment* SegmentAt(const std::vector<StripSegment>& segments, double x);

}  // namespace rqm5
