#include "memory/channel_operations.h"

#include <utility>

namespace rqm5 {
namespace {

bool IsShiftable(int tableRow)
{
    return tableRow >= 1 && tableRow <= kShiftedRows;
}

}  // namespace

void ClearRows(CloneImage& image, RowRange rows)
{
    for (int row = rows.first; row <= rows.Last(); ++row)
        ClearMemoryRow(image, row);
}

bool EnableRow(CloneImage& image, int row)
{
    const bool canEnable = image.MemData(row).HasChannel();
    image.MemData(row).enabled = canEnable;
    return canEnable;
}

void EnableRows(CloneImage& image, RowRange rows)
{
    for (int row = rows.first; row <= rows.Last(); ++row)
        EnableRow(image, row);
}

void DisableRows(CloneImage& image, RowRange rows)
{
    for (int row = rows.first; row <= rows.Last(); ++row)
        image.MemData(row).enabled = false;
}

bool DeleteTableRow(CloneImage& image, int tableRow)
{
    if (!IsShiftable(tableRow))
        return false;
    for (int row = tableRow - 1; row < kShiftedRows - 1; ++row)
        image.MemData(row) = std::move(image.MemData(row + 1));
    ClearMemoryRow(image, kShiftedRows - 1);
    return true;
}

bool InsertTableRow(CloneImage& image, int tableRow)
{
    if (!IsShiftable(tableRow))
        return false;
    for (int row = kShiftedRows - 1; row >= tableRow; --row)
        image.MemData(row) = std::move(image.MemData(row - 1));
    ClearMemoryRow(image, tableRow - 1);
    return true;
}

}  // namespace rqm5
