#pragma once

#include <QString>
#include <vector>

#include "language/message.h"

namespace rqm5 {

/// Gives a new file the owner, group, permissions, access list and extended attributes of the one whose
/// place it is going to take, as far as the system lets it. Where it does not, nobody may read or write the
/// new file who could not the old one.
/// \param descriptor  the new file, open for writing and its owner's alone so far
/// \return what is not as it was, one half sentence each: "the owner was ann and is bob"
std::vector<Message> CarryAccess(const QString& oldFile, int descriptor);

/// How many names a file has; more than one when there are hard links to it, 0 when it is not there.
int NameCount(const QString& path);

}  // namespace rqm5
