#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/list_fields.h"
#include "files/list_titles.h"

namespace rqm5 {

/// A list cut into records, without its titles, and what its columns hold.
struct ColumnList
{
    std::vector<ListRecord> records;
    std::vector<ListColumn> columns;
    Unit usualUnit = Unit::MHz;  ///< of frequencies that say none
    std::string problem;         ///< why no record can be read; empty when they can
};

/// Finds out how a list is written: by its titles, else by what most of a column looks like.
ColumnList FindColumns(std::string_view text, std::size_t mostRecords);

bool HasColumn(const std::vector<ListColumn>& columns, int part);

}  // namespace rqm5
