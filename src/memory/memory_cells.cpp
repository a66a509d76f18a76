#include "memory/memory_cells.h"

namespace rqm5 {

std::string MemoryCell(const CloneImage& image, int row, std::size_t column)
{
    const int region = image.ModelNo();
    if (column == kSecret && region >= 1)
        return IsSkipped(image, row) ? "*" : "";
    if (column == kCarrier && region >= 2)
        return "-";
    return image.MemText.at(static_cast<std::size_t>(row)).at(column);
}

}  // namespace rqm5
