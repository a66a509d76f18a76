#pragma once

#include <QString>
#include <string>

#include "language/message.h"

namespace rqm5 {

/// The message in the program's language, as it is now.
QString Translated(const Message& message);

/// The same as UTF-8, for what is written to a terminal.
std::string Said(const Message& message);

}  // namespace rqm5
