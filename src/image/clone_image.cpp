#include "image/clone_image.h"

namespace rqm5 {

std::string CloneImage::MemText(int row, Column column) const
{
    return CellText(MemData(row), RowKind::Memory, kNoRegion, column);
}

std::string CloneImage::VFOText(int row, Column column) const
{
    return CellText(VFOData(row), RowKind::Vfo, kNoRegion, column);
}

void ClearMemoryRow(CloneImage& image, int row)
{
    image.MemData(row) = {};
}

int SearchPassCount(const CloneImage& image)
{
    int count = 0;
    for (int row = kSearchPass.rows.first; row <= kSearchPass.rows.Last(); ++row)
        count += image.MemEnable(row) ? 1 : 0;
    return count;
}

}  // namespace rqm5
