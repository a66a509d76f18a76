#include "vfo/vfo_cells.h"

namespace rqm5 {

std::string VfoCell(const CloneImage& image, int row, Column column)
{
    const int region = image.ModelNo();
    if (row >= RegionOf(region).vfoBands)
        return "-";
    return CellText(image.VFOData(row), RowKind::Vfo, region, column);
}

}  // namespace rqm5
