#pragma once

#include <optional>
#include <string>
#include <vector>

#include "files/list_fields.h"
#include "files/list_numbers.h"
#include "files/list_titles.h"
#include "language/message.h"

namespace rqm5 {

/// What a column of a list is said to hold.
struct ColumnWish
{
    std::string name;  ///< its title, or its number counted from 1, also as "#3"
    ListColumn column;
};

/// How a list is written, as far as somebody says so; what is left open is found out.
struct ListForm
{
    std::string encoding;
    std::optional<char> delimiter;  ///< '\0' when every line is one field
    DecimalSign decimals = DecimalSign::Unknown;
    std::optional<bool> hasTitles;
    std::vector<ColumnWish> columns;
};

/// A list cut into records, without its titles, and how it is written.
struct ListTable
{
    std::string encoding;
    char delimiter = '\0';
    DecimalSign decimals = DecimalSign::Unknown;  ///< Unknown where the numbers do not agree or tell nothing
    bool hasTitles = false;
    std::vector<std::string> titles;
    std::vector<ListColumn> columns;
    Unit usualUnit = Unit::MHz;  ///< of frequencies that say none
    std::vector<ListRecord> records;
    int firstUnread = 0;               ///< the line of the first record beyond the limit; 0 when all are read
    std::vector<std::string> unknown;  ///< columns of the form that the list does not have
    Message problem;                   ///< why no record can be read; empty when they can
};

/// The columns that are shown and can be assigned; a list with more is no list of channels.
inline constexpr std::size_t kMostColumns = 64;

/// Cuts a list and finds out how it is written: by its titles, else by what most of a column looks like.
/// Never fails.
ListTable ReadTable(std::string_view bytes, const ListForm& form = {});

/// True when a file may be a list at all: a text with something in it, and no clone file.
bool MayBeList(std::string_view bytes);

/// The form that says of a table everything that was found out; another list of its kind is read the same
/// way with it.
ListForm FormOf(const ListTable& table);

}  // namespace rqm5
