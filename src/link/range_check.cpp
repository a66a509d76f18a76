#include "link/range_check.h"

#include <utility>

#include "link/memory_map.h"
#include "memory/bank_layout.h"
#include "memory/receiver_range.h"

namespace rqm5 {

std::vector<Message> RowsWrittenOutOfRange(const CloneImage& image, const TransferScope& scope)
{
    std::vector<Message> rows;
    if (scope.settings)
        rows = VfoRowsOutOfRange(image);
    if (scope.memory)
        for (Message& row : RowsOutOfRange(image, TransferRows(image, scope.selector)))
            rows.push_back(std::move(row));
    return rows;
}

std::vector<Message> RowsWrittenOutOfRange(const CloneImage& image, const BlockMap& written)
{
    std::vector<Message> rows;
    bool hasVfoBands = false;
    for (const auto& [address, block] : written) {
        const auto place = PlaceOf(address);
        if (place && place->area->id == Area::Vfo && !std::exchange(hasVfoBands, true))
            rows = VfoRowsOutOfRange(image);
        if (place && place->area->id == Area::Channels)
            for (Message& row : RowsOutOfRange(image, {place->index, 1}))
                rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace rqm5
