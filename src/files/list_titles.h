#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/list_numbers.h"

namespace rqm5 {

/// What a column of a list holds.
struct ListColumn
{
    static constexpr int kIgnored = -1;
    // What names the row that a channel belongs to.
    static constexpr int kBank = -2;     ///< "Bank 3", "Priority", or a table as a CSV file calls it
    static constexpr int kChannel = -3;  ///< its label there
    static constexpr int kRow = -4;      ///< the number of a memory row

    int part = kIgnored;     ///< a Column or a ChannelPart
    Unit unit = Unit::None;  ///< that its title names
};

/// What a title means: those of this program's tables and files, and plain words for the same things in
/// English, German, French, Spanish and Japanese; nothing for a text that is no title.
std::optional<ListColumn> ReadTitle(std::string_view title);

/// True when a record is a row of titles: most of its texts are, or one is that of the frequencies; and none
/// is a frequency.
bool AreTitles(const std::vector<std::string>& fields);

/// The columns under a row of titles. Of two for the same thing the first counts.
std::vector<ListColumn> ColumnsUnder(const std::vector<std::string>& titles);

}  // namespace rqm5
