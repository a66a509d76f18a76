#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "language/message.h"

namespace rqm5 {

// The receiver in one place: its groups of memory rows, and what each model region has.

inline constexpr int kMemoryRows = 1240;  ///< rows kept; a file holds all of them
inline constexpr int kRadioRows = 1210;   ///< rows that exist in the receiver
inline constexpr int kBankRows = 1000;    ///< rows that the banks share
inline constexpr int kBanks = 50;
inline constexpr int kUnassigned = 50;  ///< the BankSize entry that counts the channels in no bank
inline constexpr int kBankSizes = kBanks + 1;
inline constexpr int kLinkFlags = 56;
inline constexpr int kVfoRows = 14;
inline constexpr int kRegions = 4;

/// Indices of the bank selector: 0 to 49 are banks.
inline constexpr int kSelectProgramScan = 50;
inline constexpr int kSelectSearchPass = 51;
inline constexpr int kSelectPriority = 52;
inline constexpr int kSelectAll = 53;
inline constexpr int kSelectorEntries = 54;

/// Memory rows first to first + count - 1.
struct RowRange
{
    int first = 0;
    int count = 0;

    int Last() const { return first + count - 1; }
    bool Contains(int row) const { return row >= first && row < first + count; }

    friend bool operator==(const RowRange&, const RowRange&) = default;
};

/// A group of memory rows with a fixed place.
struct RowGroup
{
    int selector;                ///< its index in the bank selector
    RowRange rows;               ///< where it lies
    const char* title;           ///< in the bank selector; "Seach Pass" is the receiver's own spelling
    const char* spoken;          ///< in sentences
    std::string_view csvName;    ///< in the column BANK of a CSV file
    std::string_view option;     ///< at the command line
    std::string_view rowPrefix;  ///< before its labels in the view of all rows, which count from 0
    int firstLabel;              ///< of its own view; deliberate: the receiver counts so there
    bool isPairs;                ///< labels are 0A, 0B, 1A, ...
};

/// Program Scan, Search Pass and Priority.
inline constexpr std::array<RowGroup, 3> kRowGroups = {{
    {kSelectProgramScan,
     {1000, 100},
     MESSAGE("Program Scan"),
     MESSAGE("Program Scan"),
     "PROGRAM SCAN",
     "program-scan",
     "",
     0,
     true},
    {kSelectSearchPass,
     {1100, 100},
     MESSAGE("Seach Pass"),
     MESSAGE("Search Pass"),
     "SEARCH PASS",
     "search-pass",
     "S",
     1,
     false},
    {kSelectPriority,
     {1200, 10},
     MESSAGE("Priority"),
     MESSAGE("Priority"),
     "PRIORITY",
     "priority",
     "Pr",
     1,
     false},
}};

inline constexpr const RowGroup& kProgramScan = kRowGroups[0];
inline constexpr const RowGroup& kSearchPass = kRowGroups[1];
inline constexpr const RowGroup& kPriority = kRowGroups[2];

/// The rows that the banks share, as a CSV file calls them.
inline constexpr std::string_view kCsvBankRows = "MEMORY";

/// The group of a selector entry, nullptr for a bank and for all rows.
const RowGroup* GroupOfSelector(int selector);

/// The group that holds a memory row, nullptr for the rows that the banks share and those behind 1209.
const RowGroup* GroupOfRow(int row);

/// The label of a row of a group, counted from 0: in its own view, and in the view of all rows.
std::string GroupLabel(const RowGroup& group, int index);
std::string LabelAmongAll(const RowGroup& group, int index);

/// What a model region has.
struct Region
{
    std::string_view model;  ///< the receiver sold there
    int vfoBands;            ///< of the 14 VFO rows
    bool hasSecretCode;      ///< in the VFO table and in the editor
    bool hasCarrier;         ///< in the VFO table and in the editor
    bool showsSkipMark;      ///< the memory table, in place of the secret code
    bool hidesCarrier;       ///< the memory table
    bool blocksCellular;     ///< the ranges of cellular telephones are refused
    int bandPlan;            ///< of the VFO defaults: 0 the finer one of 14 bands, 1 that of 8
    int defaultSteps;        ///< of the VFO defaults: 0 or 1
    int presets;             ///< which set of presets a change of the region writes
    bool hasFixedPassCount;  ///< the count of Search Pass channels has a fixed value in the settings
};

/// Regions 0 to 3; any other number counts as the nearest of them, the models of a sibling as region 3.
int RegionNumber(int model);
const Region& RegionOf(int region);

/// The captions of the model option buttons 0 to 5, the last two of a sibling model.
std::span<const std::string_view> ModelNames();

/// One of them, empty for a number that none has.
std::string_view ModelName(int model);

}  // namespace rqm5
