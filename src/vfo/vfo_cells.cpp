#include "vfo/vfo_cells.h"

namespace rqm5 {
namespace {

bool IsShown(int region, int row, std::size_t column)
{
    if (row >= BandCount(region))
        return false;
    if (column == kSecret)
        return region == 1;
    if (column == kCarrier)
        return region == 0;
    return true;
}

}  // namespace

std::string VfoCell(const CloneImage& image, int row, std::size_t column)
{
    if (!IsShown(image.ModelNo(), row, column))
        return "-";
    return image.VFOText.at(static_cast<std::size_t>(row)).at(column);
}

}  // namespace rqm5
