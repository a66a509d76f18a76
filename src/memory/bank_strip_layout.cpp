#include "memory/bank_strip_layout.h"

#include <algorithm>

#include "memory/bank_layout.h"

namespace rqm5 {

std::vector<StripSegment> LayOutBanks(const CloneImage& image, double width, double least)
{
    std::vector<StripSegment> segments;
    for (int bank = 0; bank <= kUnassigned; ++bank) {
        const RowRange rows = bank == kUnassigned ? RowsInNoBank(image) : GroupRows(image, bank);
        if (rows.count > 0)
            segments.push_back({bank, 0, 0, FillOf(image, rows)});
    }
    const auto count = static_cast<double>(std::max<std::size_t>(segments.size(), 1));
    const double floor = std::min(least, width / count);
    double left = 0;
    for (StripSegment& segment : segments) {
        segment.left = left;
        segment.width = floor + (width - floor * count) * segment.fill.rows / kBankRows;
        left += segment.width;
    }
    return segments;
}

const StripSegment* SegmentAt(const std::vector<StripSegment>& segments, double x)
{
    const auto found = std::ranges::find_if(segments, [x](const StripSegment& segment) {
        return x >= segment.left && x < segment.left + segment.width;
    });
    return found == segments.end() ? nullptr : &*found;
}

}  // namespace rqm5
