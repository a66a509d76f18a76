#include "memory/channel_operations.h"

#include <utility>

namespace rqm5 {
namespace {

bool IsShiftable(int tableRow)
{
    return tableRow >= 1 && tableRow <= kShiftedRows;
}

}  // namespace

void ClearRows(CloneImage& image, const RowList& rows)
{
    for (const int row : rows)
        ClearMemoryRow(image, row);
}

bool EnableRow(CloneImage& image, int row)
{
    const bool canEnable = image.MemData(row).HasChannel();
    image.MemData(row).enabled = canEnable;
    return canEnable;
}

void EnableRows(CloneImage& image, const RowList& rows)
{
    for (const int row : rows)
        EnableRow(image, row);
}

void DisableRows(CloneImage& image, const RowList& rows)
{
    for (const int row : rows)
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
