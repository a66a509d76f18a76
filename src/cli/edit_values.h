#pragma once

#include <string>
#include <string_view>

#include "cli/arguments.h"

namespace rqm5 {

// Why a value of this kind is refused; empty when it is taken.
Message RowsFault(std::string_view text);
Message PlaceFault(std::string_view text);
Message AssignmentFault(std::string_view text);
Message SortKeyFault(std::string_view text);
Message ShellFault(std::string_view text);

// What is wrong with arguments that are right one by one; empty when nothing is.
Message SetFault(const Arguments& arguments);
Message MergeFault(const Arguments& arguments);
Message FilesFault(const Arguments& arguments);  ///< of a command that takes several files and a form
Message ExportFault(const Arguments& arguments);
Message PrintFault(const Arguments& arguments);
Message ScopeAndFormFault(const Arguments& arguments);

}  // namespace rqm5
