#pragma once

#include <string>

#include "cli/command.h"

namespace rqm5 {

/// "rq-m5 read [--port P] ... FILE"
std::string UsageLine(const Command& command);

std::string ProgramHelp();
std::string CommandHelp(const Command& command);

}  // namespace rqm5
