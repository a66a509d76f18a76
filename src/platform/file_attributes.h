#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/access_list.h"

namespace rqm5 {

/// The access list of a file; nothing when it has none or the system keeps them otherwise.
std::optional<AccessList> ListOf(const char* path);

/// \return false when the new file could not get the list
bool SetList(int descriptor, const AccessList& list);

/// Gives a new file what users and file systems keep beside the old one. \return what it could not get
std::vector<std::string> CarryAttributes(const char* path, int descriptor);

}  // namespace rqm5
