#pragma once

#include <string>
#include <vector>

#include "files/list_numbers.h"
#include "files/list_titles.h"
#include "image/clone_image.h"

namespace rqm5 {

/// What of an image goes into a list for spreadsheets.
struct ListChoice
{
    std::vector<RowRange> groups;
    std::vector<ListColumn> columns;
    DecimalSign decimals = DecimalSign::Point;
};

/// Every column that a list can have, in its usual order, and its title.
std::vector<ListColumn> ListColumns();
std::string ListTitle(const ListColumn& column);

/// The rows of a choice that hold a channel.
int CountRows(const CloneImage& image, const ListChoice& choice);

/// A list with real bank and channel names: UTF-8 with its mark, titles, one record a channel. A decimal
/// comma goes with semicolons between the fields. Nothing in it is run by a spreadsheet, and read back as a
/// list it gives the same codes.
std::string FormatList(const CloneImage& image, const ListChoice& choice);

}  // namespace rqm5
