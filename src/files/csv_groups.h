#pragma once

#include <array>
#include <string_view>

#include "image/clone_image.h"

namespace rqm5 {

inline constexpr std::string_view kCsvModel = "RQ-M5";
inline constexpr std::string_view kCsvVfo = "VFO";

/// The groups of memory rows in a CSV file, in its order, by their names in the column BANK.
struct CsvGroup
{
    std::string_view bank;
    int first;
    int count;
};

inline constexpr int kCsvProgramScan = 1;  ///< the group whose channels have labels and no numbers

inline constexpr std::array<CsvGroup, 4> kCsvGroups = {{
    {"MEMORY", 0, kBankRows},
    {"PROGRAM SCAN", kProgramScanFirst, kSearchPassFirst - kProgramScanFirst},
    {"SEARCH PASS", kSearchPassFirst, kPriorityFirst - kSearchPassFirst},
    {"PRIORITY", kPriorityFirst, kRadioRows - kPriorityFirst},
}};

}  // namespace rqm5
