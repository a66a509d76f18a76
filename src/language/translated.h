#pragma once

#include <QString>
#include <string>

#include "language/message.h"

namespace rqm5 {

/// The message in the program's language, as it is now.
QString Translated(const Message& message);

/// The same for what is written to a terminal or kept in a Problem, as UTF-8.
std::string Said(const Message& message);

}  // namespace rqm5
