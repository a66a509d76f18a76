#include "memory/row_names.h"

#include "memory/bank_layout.h"

namespace rqm5 {

Message PlaceOfRow(const CloneImage& image, int row)
{
    if (const RowGroup* group = GroupOfRow(row))
        return Message::List({group->spoken, LabelAmongAll(*group, row - group->rows.first)}, " ");
    const int bank = SelectorOfRow(image, row);
    if (bank == kSelectAll)
        return {};
    return {MESSAGE("%1, channel %2"), {SelectorText(bank), row - GroupRows(image, bank).first}};
}

Message RowName(const CloneImage& image, int row)
{
    if (const Message place = PlaceOfRow(image, row); !place.empty())
        return {MESSAGE("memory row %1 (%2)"), {row, place}};
    return {row < kRadioRows ? MESSAGE("memory row %1 (in no bank)")
                             : MESSAGE("memory row %1 (not in the receiver)"),
            {row}};
}

Message RowLabel(const CloneImage& image, int row)
{
    const Message place = PlaceOfRow(image, row);
    return place.empty() ? Message(MESSAGE("Row %1 (no bank)"), {row})
                         : Message(MESSAGE("Row %1 (%2)"), {row, place});
}

Message VfoRowName(int row)
{
    return {MESSAGE("VFO row %1"), {row}};
}

Message RowName(const CloneImage& image, RowId id)
{
    return id.IsMemory() ? RowName(image, id.row) : VfoRowName(id.row);
}

}  // namespace rqm5
