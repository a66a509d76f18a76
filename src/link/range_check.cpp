#include "link/range_check.h"

#include "memory/bank_layout.h"
#include "memory/receiver_range.h"

namespace rqm5 {

std::vector<std::string> RowsWrittenOutOfRange(const CloneImage& image, const TransferScope& scope)
{
    std::vector<std::string> rows;
    if (scope.settings)
        rows = VfoRowsOutOfRange(image);
    if (scope.memory)
        for (std::string& row : RowsOutOfRange(image, TransferRows(image, scope.selector)))
            rows.push_back(std::move(row));
    return rows;
}

}  // namespace rqm5
