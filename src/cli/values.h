#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/arguments.h"
#include "link/transfer_scope.h"

namespace rqm5 {

/// Digits only, as a number from lowest to highest.
std::optional<int> ReadNumberIn(std::string_view text, int lowest, int highest);

/// A COM number 1 to 14: "5", "COM5", "COM 5".
std::optional<int> ReadComNumber(std::string_view text);

/// A bank 0 to 49, "program-scan", "search-pass", "priority" or "all", as a selector index.
std::optional<int> ReadSelector(std::string_view text);

// Why a value of this kind is refused; empty when it is taken.
Message RegionFault(std::string_view text);
Message PortNumberFault(std::string_view text);
Message ScopeFault(std::string_view text);
Message SelectorFault(std::string_view text);
Message PaperFault(std::string_view text);
Message FileNameFault(std::string_view text);

/// What --only and --bank ask for: a bank alone asks for the memory alone.
TransferScope ScopeOf(const Arguments& arguments);

/// A bank cannot be chosen when no memory is transferred.
Message ScopeConflict(const Arguments& arguments);

/// What print does not print cannot be chosen, and a terminal has no paper.
Message PrintConflict(const Arguments& arguments);

/// The selector that --bank asks for; all without it.
int SelectorOf(const Arguments& arguments);

}  // namespace rqm5
