#pragma once

#include <string>
#include <vector>

#include "image/clone_image.h"

namespace rqm5 {

/// Which rows of a group the memory table shows.
enum class RowFilter {
    All,
    WithChannel,
    Enabled,
    Disabled,  ///< channels that are off; empty rows are off too, and of no interest
    Skipped,
    WithNote,
    Duplicates,  ///< channels whose frequency and mode the receiver has more than once
};

/// The memory rows of a group that a filter leaves, rising, and their labels, which are those of the group.
struct ShownRows
{
    std::vector<int> rows;
    std::vector<std::string> labels;
};

ShownRows FilterGroup(const CloneImage& image, int selector, RowFilter filter);

}  // namespace rqm5
