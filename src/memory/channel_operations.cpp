#include "memory/channel_operations.h"

#include <algorithm>

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
    const bool canEnable = HasChannel(image, row);
    image.MemEnable.at(static_cast<std::size_t>(row)) = canEnable;
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
        image.MemEnable.at(static_cast<std::size_t>(row)) = false;
}

bool DeleteTableRow(CloneImage& image, int tableRow)
{
    if (!IsShiftable(tableRow))
        return false;
    const int row = tableRow - 1;
    std::move(image.MemData.begin() + row + 1, image.MemData.begin() + kShiftedRows,
              image.MemData.begin() + row);
    std::move(image.MemText.begin() + row + 1, image.MemText.begin() + kShiftedRows,
              image.MemText.begin() + row);
    std::move(image.MemEnable.begin() + row + 1, image.MemEnable.begin() + kShiftedRows,
              image.MemEnable.begin() + row);
    ClearMemoryRow(image, kShiftedRows - 1);
    return true;
}

bool InsertTableRow(CloneImage& image, int tableRow)
{
    if (!IsShiftable(tableRow))
        return false;
    const int row = tableRow - 1;
    std::move_backward(image.MemData.begin() + row, image.MemData.begin() + kShiftedRows - 1,
                       image.MemData.begin() + kShiftedRows);
    std::move_backward(image.MemText.begin() + row, image.MemText.begin() + kShiftedRows - 1,
                       image.MemText.begin() + kShiftedRows);
    std::move_backward(image.MemEnable.begin() + row, image.MemEnable.begin() + kShiftedRows - 1,
                       image.MemEnable.begin() + kShiftedRows);
    ClearMemoryRow(image, row);
    return true;
}

}  // namespace rqm5
