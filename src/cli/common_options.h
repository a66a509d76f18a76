#pragma once

#include "cli/arguments.h"
#include "cli/values.h"

namespace rqm5 {

// Options that several commands take.

inline constexpr Option kPort = {
    "--port", "P",
    "COM number 1 to 14, also as COM5, or a device or a link to one; without it the number in RQ-M5.ini",
    PortNumberFault};
inline constexpr Option kOnly = {"--only", "settings|memory", "leave the other part out", ScopeFault};
inline constexpr Option kBank = {
    "--bank", "SEL", "bank 0 to 49, program-scan, search-pass, priority or all (default)", SelectorFault};
inline constexpr Option kTransferBank = {
    "--bank", "SEL",
    "the memory only: bank 0 to 49, program-scan, search-pass, priority or all; "
    "without it settings and all of the memory",
    SelectorFault};
inline constexpr Option kJson = {"--json", "", "write JSON, as docs/json.md describes it"};
inline constexpr Option kTsv = {"--tsv", "", "write fields separated by tabs, titles first"};
inline constexpr Option kFromFile = {"--from-file", "LIST", "take names of files from LIST, one on each line",
                                     FileNameFault};

}  // namespace rqm5
