#pragma once

#include <vector>

#include "image/clone_image.h"

namespace rqm5 {

/// Memory rows, each once, rising.
using RowList = std::vector<int>;

/// All rows of a range.
RowList RowsOf(RowRange range);

/// The rows that hold a channel.
RowList ChannelsAmong(const CloneImage& image, const RowList& rows);

/// Where channels may be moved about: the rows of a bank or of a fixed group, and how many of them belong
/// together. The edges of a program scan are pairs.
struct MoveGroup
{
    RowRange rows;
    int unit = 1;
};

/// \param selector  a bank or a fixed group, not the view of all rows
MoveGroup MoveGroupOf(const CloneImage& image, int selector);

// In all of these flags and notes travel with their channels, and rows outside the group stay as they are.
// Each returns the rows that hold afterwards what the given rows held.

/// Moves rows, together, to before a row of the group, or to behind its last one.
RowList MoveRows(CloneImage& image, const MoveGroup& group, const RowList& rows, int before);

/// Moves rows one place up or down. Rows that are at the end stay there.
RowList ShiftRows(CloneImage& image, const MoveGroup& group, const RowList& rows, bool isUp);

enum class SortKey { Frequency, Note, Mode };

/// Sorts the whole group. Equal ones keep their order, empty rows come last; a pair goes by its first
/// channel.
void SortRows(CloneImage& image, const MoveGroup& group, SortKey key);

/// Puts an empty row (of pairs: an empty pair) at a row; those behind it move down as far as the last empty
/// one.
/// \return false when the group has no empty row behind it; nothing changes then
bool InsertRow(CloneImage& image, const MoveGroup& group, int row);

/// Removes rows (of pairs: whole pairs) and closes the gaps; the last rows of the group become empty.
void DeleteRows(CloneImage& image, const MoveGroup& group, const RowList& rows);

/// The empty rows of a range.
RowList EmptyRows(const CloneImage& image, RowRange range);

/// Copies channels, in order, into as many rows.
void CopyRows(CloneImage& image, const RowList& from, const RowList& to);

}  // namespace rqm5
