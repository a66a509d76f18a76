#pragma once

#include <span>
#include <string>

#include "cli/console.h"

namespace rqm5 {

/// Runs what a user typed behind the program's name.
Status RunProgram(std::span<const std::string> words, Console& console);

}  // namespace rqm5
