#pragma once

#include <QString>
#include <string>
#include <vector>

#include "language/message.h"

namespace rqm5 {

/// Names for a message, one a line or with a text between them: the first so many of them; the rest are
/// counted.
Message NamedRows(std::vector<Message> rows, std::size_t named, std::string separator = "\n");

/// The same in the language of now.
QString RowList(const std::vector<Message>& rows, std::size_t named);
QString RowList(const std::vector<std::string>& rows, std::size_t named);

}  // namespace rqm5
