#include "memory/receiver_range.h"

#include "image/number_text.h"
#include "image/value_tables.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

void AddIfOutside(const CloneImage& image, RowId id, std::vector<Message>& names)
{
    const Channel& channel = image.At(id);
    if (channel.HasChannel() && !IsInReceiverRange(channel.frequency))
        names.push_back(
            Message(MESSAGE("%1: %2"), {RowName(image, id), FormatMegahertz(channel.frequency) + " MHz"}));
}

}  // namespace

bool IsInReceiverRange(std::int64_t hertz)
{
    return kReceiverRange.Contains(Megahertz(hertz));
}

std::vector<Message> RowsOutOfRange(const CloneImage& image, RowRange rows)
{
    std::vector<Message> names;
    for (int row = rows.first; row <= rows.Last(); ++row)
        AddIfOutside(image, {RowKind::Memory, row}, names);
    return names;
}

std::vector<Message> VfoRowsOutOfRange(const CloneImage& image)
{
    std::vector<Message> names;
    for (int row = 0; row < RegionOf(image.ModelNo()).vfoBands; ++row)
        AddIfOutside(image, {RowKind::Vfo, row}, names);
    return names;
}

}  // namespace rqm5
