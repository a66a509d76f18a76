#include "memory/row_filter.h"

#include "memory/bank_layout.h"
#include "memory/duplicates.h"

namespace rqm5 {
namespace {

bool Passes(const Channel& channel, RowFilter filter)
{
    switch (filter) {
        case RowFilter::WithChannel:
            return channel.HasChannel();
        case RowFilter::Enabled:
            return channel.enabled;
        case RowFilter::Disabled:
            return channel.HasChannel() && !channel.enabled;
        case RowFilter::Skipped:
            return channel.HasChannel() && channel.IsSkipped();
        case RowFilter::WithNote:
            return !channel.note.empty();
        case RowFilter::All:
        case RowFilter::Duplicates:
            break;
    }
    return true;
}

}  // namespace

ShownRows FilterGroup(const CloneImage& image, int selector, RowFilter filter)
{
    const RowRange group = GroupRows(image, selector);
    std::vector<std::string> labels = BuildChannelLabels(image, selector);
    const std::vector<bool> isDuplicate =
        filter == RowFilter::Duplicates ? DuplicateRows(image) : std::vector<bool>(kRadioRows, true);
    ShownRows shown;
    for (int row = group.first; row <= group.Last(); ++row) {
        if (!Passes(image.MemData(row), filter) || !isDuplicate[static_cast<std::size_t>(row)])
            continue;
        shown.rows.push_back(row);
        shown.labels.push_back(std::move(labels[static_cast<std::size_t>(row - group.first)]));
    }
    return shown;
}

}  // namespace rqm5
