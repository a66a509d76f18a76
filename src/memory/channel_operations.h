#pragma once

#include "memory/row_moves.h"

namespace rqm5 {

/// Delete and insert work on memory rows 0 to 199 by the number of the table row alone, whatever group is
/// shown. Deliberate: these two have always worked on these rows, and owners count on it.
inline constexpr int kShiftedRows = 200;

void ClearRows(CloneImage& image, const RowList& rows);

/// Enables a row that holds a channel; a row without one is switched off.
/// \return true when the row is enabled now
bool EnableRow(CloneImage& image, int row);

void EnableRows(CloneImage& image, const RowList& rows);
void DisableRows(CloneImage& image, const RowList& rows);

/// Removes the row of table row 1 to 200 and closes the gap up to memory row 199, which becomes empty.
/// \return false when the table row is outside the range; nothing changes then
bool DeleteTableRow(CloneImage& image, int tableRow);

/// Puts an empty, disabled row at table row 1 to 200; the channel of memory row 199 is lost.
/// \return false when the table row is outside the range; nothing changes then
bool InsertTableRow(CloneImage& image, int tableRow);

}  // namespace rqm5
