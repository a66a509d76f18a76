#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace rqm5 {

/// One line of a list, cut into fields. A field in quotes may hold line ends.
struct ListRecord
{
    int line;  ///< where it begins, from 1
    std::vector<std::string> fields;
};

/// Tab, semicolon or comma: what cuts most lines into the same number of fields. '\0' when every line is one
/// field: commas are those of decimals then.
char DelimiterOf(std::string_view text);

/// Cuts a text into records and fields, without the blanks around a field. A field in double quotes may hold
/// anything, and a doubled quote stands for one. Records without any text are left out.
/// \param most  records behind that many are not looked at
std::vector<ListRecord> SplitList(std::string_view text, char delimiter, std::size_t most);

}  // namespace rqm5
