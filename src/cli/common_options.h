#pragma once

#include "cli/arguments.h"
#include "cli/values.h"

namespace rqm5 {

// Options that several commands take.

inline constexpr Option kPort = {
    "--port", "P",
    MESSAGE(
        "COM number 1 to 14, also as COM5, or a device or a link to one; without it the number in RQ-M5.ini"),
    PortNumberFault};
inline constexpr Option kOnly = {"--only", "settings|memory", MESSAGE("leave the other part out"),
                                 ScopeFault};
inline constexpr Option kBank = {
    "--bank", "SEL", MESSAGE("bank 0 to 49, program-scan, search-pass, priority or all (default)"),
    SelectorFault};
inline constexpr Option kTransferBank = {
    "--bank", "SEL",
    MESSAGE("the memory only: bank 0 to 49, program-scan, search-pass, priority or all; without it "
            "settings and all of the memory"),
    SelectorFault};
inline constexpr Option kJson = {"--json", "", MESSAGE("write JSON, as docs/json.md describes it")};
inline constexpr Option kTsv = {"--tsv", "", MESSAGE("write fields separated by tabs, titles first")};
inline constexpr Option kFromFile = {
    "--from-file", "LIST", MESSAGE("take names of files from LIST, one on each line"), FileNameFault};

}  // namespace rqm5
