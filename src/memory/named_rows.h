#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/channel_list.h"

namespace rqm5 {

/// A memory row that a list names, or why it names none.
struct NamedRow
{
    static constexpr int kNone = -1;

    int row = kNone;
    Message refusal = {};
};

/// Finds the row of a place: "Bank 3" and its channel "12", "Priority" and "Pr3", the tables of a CSV file
/// and their labels, or the number of a memory row.
NamedRow FindNamedRow(const CloneImage& image, const ListedPlace& place);

/// True when the channels of a list say where they belong.
bool NamesRows(const std::vector<ListedChannel>& channels);

/// The columns BANK and CHANNEL of a memory row: "Bank 3" and "12", "Search Pass" and "S5"; of a row in no
/// bank "MEMORY" and its number.
ListedPlace PlaceInList(const CloneImage& image, int row);

/// The row that somebody names in one word, nothing for any other: a memory row 0 to 1209 by its number,
/// "3:12" for a channel of a bank, "3:" for the first one, "priority" for the first row of a group.
std::optional<int> RowOfWord(const CloneImage& image, std::string_view word);

/// The rows that a list may fill from a row on: to the end of its group, or of the banks.
RowRange RowsOnFrom(const CloneImage& image, int row);

}  // namespace rqm5
