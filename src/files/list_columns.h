#pragma once

#include <string_view>
#include <vector>

#include "files/list_form.h"

namespace rqm5 {

/// Finds out how the text of a list is written.
/// \param mostRecords  records behind that many are not looked at
ListTable FindColumns(std::string_view text, std::size_t mostRecords, const ListForm& form);

bool HasColumn(const std::vector<ListColumn>& columns, int part);

}  // namespace rqm5
