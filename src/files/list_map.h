#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "files/list_form.h"

namespace rqm5 {

/// What a column can hold, as somebody writes it: "frequency:kHz", "note", "bank", "none".
std::string FieldName(const ListColumn& column);
std::optional<ListColumn> FieldNamed(std::string_view name);

/// The names of all fields, for a message: "frequency, mode, ...".
std::string FieldNames();

// How a list is written as one line: "Frequenz=frequency:kHz,3=note,@delimiter=semicolon". A title with a
// comma, a "=" or quotes stands in double quotes.

std::string FormatForm(const ListForm& form);

/// \return the form, or what is wrong with the text
std::variant<ListForm, Message> ParseForm(std::string_view text);

// What is said of a list: "semicolon", "comma", the words of a form in every language.
Message DelimiterName(char delimiter);
Message DecimalName(DecimalSign sign);

/// One sentence: the encoding, the delimiter, the decimal sign, and what each column was taken for.
Message DescribeTable(const ListTable& table);

}  // namespace rqm5
