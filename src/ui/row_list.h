#pragma once

#include <QString>
#include <string>
#include <vector>

namespace rqm5 {

/// Names for a message, one a line: the first so many of them; the rest are counted.
QString RowList(const std::vector<std::string>& rows, std::size_t named);

}  // namespace rqm5
