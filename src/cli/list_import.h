#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "image/problem.h"
#include "memory/paste_plan.h"

namespace rqm5 {

/// What importing a list will do.
struct ListImport
{
    std::optional<Problem> problem = {};
    Message description = {};  ///< how the list was read
    PastePlan plan = {};
    std::vector<Message> refused = {};  ///< "Line 3: why"
    std::vector<Message> remarks = {};  ///< what was left out of rows that are taken
};

/// Reads a list as --map and --decimal-comma say, and plans where it goes: from --from-row on, else to the
/// rows that the list names.
ListImport PlanListImport(const std::string& bytes, const CloneImage& image, const Arguments& arguments);

/// Why a value of --map is refused; empty when it is taken.
Message MapFault(std::string_view text);

/// The same of --from-row, as far as it can be told without a file.
Message FromRowFault(std::string_view text);

}  // namespace rqm5
