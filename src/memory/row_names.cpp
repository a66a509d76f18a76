#include "memory/row_names.h"

#include "memory/bank_layout.h"

namespace rqm5 {

std::string PlaceOfRow(const CloneImage& image, int row)
{
    if (const RowGroup* group = GroupOfRow(row))
        return std::string(group->spoken) + " " + LabelAmongAll(*group, row - group->rows.first);
    const int bank = SelectorOfRow(image, row);
    if (bank == kSelectAll)
        return {};
    return SelectorText(bank) + ", channel " + std::to_string(row - GroupRows(image, bank).first);
}

std::string RowName(const CloneImage& image, int row)
{
    const std::string place = PlaceOfRow(image, row);
    const char* nowhere = row < kRadioRows ? "in no bank" : "not in the receiver";
    return "memory row " + std::to_string(row) + " (" + (place.empty() ? nowhere : place) + ")";
}

std::string RowLabel(const CloneImage& image, int row)
{
    const std::string place = PlaceOfRow(image, row);
    return "Row " + std::to_string(row) + " (" + (place.empty() ? "no bank" : place) + ")";
}

std::string VfoRowName(int row)
{
    return "VFO row " + std::to_string(row);
}

std::string RowName(const CloneImage& image, RowId id)
{
    return id.IsMemory() ? RowName(image, id.row) : VfoRowName(id.row);
}

}  // namespace rqm5
