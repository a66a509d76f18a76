#include "cli/command.h"
#include "cli/common_options.h"
#include "cli/edit_values.h"

namespace rqm5 {
namespace {

constexpr Option kDryRun = {"--dry-run", "", MESSAGE("list what would change and write nothing")};
constexpr Option kKeep = {"--keep", "", MESSAGE("keep FILE as it was as FILE~")};
constexpr Option kSafeNotes = {"--safe-notes", "", MESSAGE("store notes without commas and quotes")};
constexpr Option kForce = {"--force", "",
                           MESSAGE("write FILE even if its notes keep it from being opened again")};

constexpr Option kEditOptions[] = {kDryRun, kKeep, kSafeNotes, kForce};
constexpr Option kSortOptions[] = {
    {"--by", "frequency|note|mode", MESSAGE("what decides the order (default frequency)"), SortKeyFault},
    kDryRun,
    kKeep,
    kSafeNotes,
    kForce,
};
constexpr Option kMergeOptions[] = {
    {"--take", "ROWS", MESSAGE("what is taken; as for set, and also settings and banks"), RowsFault},
    kDryRun,
    kKeep,
    kSafeNotes,
    kForce,
};
constexpr Option kFindOptions[] = {kJson, kTsv, kFromFile};

constexpr Operand kRows[] = {{"FILE"}, {"ROWS", RowsFault}};
constexpr Operand kSetOperands[] = {
    {"FILE"}, {"ROWS", RowsFault}, {"FIELD=VALUE", AssignmentFault, Count::Any}};
constexpr Operand kToOperands[] = {{"FILE"}, {"ROWS", RowsFault}, {"TO", PlaceFault}};
constexpr Operand kMergeOperands[] = {{"OTHER"}, {"FILE"}};
constexpr Operand kFindOperands[] = {{"PATTERN"}, {"FILE", nullptr, Count::Any}};
constexpr Operand kShell[] = {{"bash|zsh|fish", ShellFault}};
constexpr Operand kTopic[] = {{"COMMAND", nullptr, Count::Optional}};

constexpr Command kCommands[] = {
    {"find", MESSAGE("find channels in files"),
     MESSAGE("PATTERN is one or more words: frequencies, modes, notes, tones. A word such as "
             "118..137, mode=AM, tone=88.5, note~tower, bank:3 or program-scan leaves the rows that "
             "meet it. Prints file, bank, channel, memory row and what it holds. Status 1 when "
             "nothing was found."),
     kFindOperands, kFindOptions, RunFind, FindFault},
    {"set", MESSAGE("change fields of channels"),
     MESSAGE("ROWS is one or more of all, bank:3, bank:2/5-9, memory:0-199, program-scan, "
             "search-pass, priority and vfo, with commas between; conditions such as mode=AM, "
             "freq:118..137 and note~airport leave those of them that meet them. FIELD is freq, mode, "
             "step, option, secret, carrier, tone, shift, offset, note, skip or enabled. The limits "
             "are those of the channel editor."),
     kSetOperands, kEditOptions, RunSet, SetFault},
    {"enable", MESSAGE("switch channels on"), MESSAGE("ROWS is as for set."), kRows, kEditOptions, RunEnable},
    {"disable", MESSAGE("switch channels off"), MESSAGE("ROWS is as for set."), kRows, kEditOptions,
     RunDisable},
    {"clear", MESSAGE("empty rows, with their notes"), MESSAGE("ROWS is as for set."), kRows, kEditOptions,
     RunClear},
    {"copy", MESSAGE("copy channels to another place"),
     MESSAGE("ROWS is as for set. TO is a bank or group, whose empty rows take the channels, or one "
             "row such as bank:3/12, from which on they replace what is there."),
     kToOperands, kEditOptions, RunCopy},
    {"move", MESSAGE("move channels to another place"),
     MESSAGE("As copy; the rows that they came from become empty."), kToOperands, kEditOptions, RunMove},
    {"sort", MESSAGE("sort the channels of banks and groups"),
     MESSAGE("ROWS is one or more places, each sorted by itself; all sorts every bank and group. "
             "Empty rows come last."),
     kRows, kSortOptions, RunSort},
    {"merge", MESSAGE("take rows of one file into another"),
     MESSAGE("Rows of OTHER that --take names go to the same places of FILE; notes and flags go with them."),
     kMergeOperands, kMergeOptions, RunMerge, MergeFault},
    {"completion",
     MESSAGE("print the completion script of a shell"),
     MESSAGE("Installed with the program; for a shell of your own, source what it prints."),
     kShell,
     {},
     RunCompletion},
    {"help",
     MESSAGE("explain a command"),
     MESSAGE("Without COMMAND it lists all of them."),
     kTopic,
     {},
     RunHelp},
};

}  // namespace

std::span<const Command> EditCommands()
{
    return kCommands;
}

}  // namespace rqm5
