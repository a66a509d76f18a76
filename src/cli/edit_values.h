#pragma once

#include <string>
#include <string_view>

#include "cli/arguments.h"

namespace rqm5 {

// Why a value of this kind is refused; empty when it is taken.
std::string RowsFault(std::string_view text);
std::string PlaceFault(std::string_view text);
std::string AssignmentFault(std::string_view text);
std::string SortKeyFault(std::string_view text);
std::string ShellFault(std::string_view text);

// What is wrong with arguments that are right one by one; empty when nothing is.
std::string SetFault(const Arguments& arguments);
std::string MergeFault(const Arguments& arguments);
std::string FilesFault(const Arguments& arguments);  ///< of a command that takes several files and a form
std::string ExportFault(const Arguments& arguments);
std::string PrintFault(const Arguments& arguments);
std::string ScopeAndFormFault(const Arguments& arguments);

}  // namespace rqm5
