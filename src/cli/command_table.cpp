#include <algorithm>
#include <array>

#include "cli/command.h"
#include "cli/values.h"
#include "link/block_address.h"

namespace rqm5 {
namespace {

constexpr Option kPort = {
    "--port", "P",
    "COM number 1 to 14, also as COM5, or a device or a link to one; without it the number in RQ-M5.ini",
    PortNumberFault};
constexpr Option kOnly = {"--only", "settings|memory", "leave the other part out", ScopeFault};
constexpr Option kBank = {
    "--bank", "SEL", "bank 0 to 49, program-scan, search-pass, priority or all (default)", SelectorFault};

constexpr Option kTransferBank = {
    "--bank", "SEL",
    "the memory only: bank 0 to 49, program-scan, search-pass, priority or all; "
    "without it settings and all of the memory",
    SelectorFault};

constexpr Option kNewOptions[] = {
    {"--region", "0..3", "model region (default 0)", RegionFault},
    {"--empty", "", "no banks: all 1000 channels unassigned"},
    {"--force", "", "replace FILE when it exists"},
};
constexpr Option kQuiet = {"--quiet", "", "show no progress, and say nothing when all goes well", nullptr,
                           "-q"};
constexpr Option kTransferOptions[] = {kPort, kOnly, kTransferBank, kQuiet};
constexpr Option kReadOptions[] = {
    kPort,         kOnly,
    kTransferBank, {"--verify", "", "read everything twice and list each block that came otherwise"},
    kQuiet,
};
constexpr Option kWriteOptions[] = {
    kPort,
    kOnly,
    kTransferBank,
    {"--backup", "COPY", "first read what will be replaced and save it as COPY, a new file", FileNameFault},
    {"--verify", "", "read back afterwards and list each block that differs"},
    {"--force", "", "write although the backup shows that the receiver is another model"},
    kQuiet,
};
constexpr Option kShowOptions[] = {kBank};
constexpr Option kPrintOptions[] = {
    {"--pdf", "OUT.pdf", "write the pages to a PDF instead of the terminal"},
    {"--settings", "", "print the settings"},
    {"--vfo", "", "print the VFO table"},
    {"--memory", "", "print the memory channels"},
    kBank,
    {"--empty", "", "print empty rows, too"},
    {"--paper", "a4|letter", "size of the PDF's pages; without it that of the country", PaperFault},
    {"--landscape", "", "turn the PDF's pages"},
    {"--force", "", "replace OUT.pdf whatever it holds"},
};
constexpr Option kExportOptions[] = {{"--force", "", "replace OUT.csv whatever it holds"}};
constexpr Option kImportOptions[] = {
    {"--safe-notes", "", "store notes without commas and quotes, which a clone file cannot hold"},
    {"--force", "", "write FILE even if its notes keep it from being opened again"},
};
constexpr Option kRepairOptions[] = {
    {"--to", "NEW", "write the repaired file under this name, which no file has yet", FileNameFault},
    {"--in-place", "", "write it in the place of FILE, which is kept as FILE~"},
};
constexpr Option kRawOptions[] = {kPort};

constexpr Operand kFile[] = {{"FILE"}};
constexpr Operand kExportFiles[] = {{"FILE"}, {"OUT.csv"}};
constexpr Operand kImportFiles[] = {{"IN.csv"}, {"FILE"}};
constexpr Operand kTwoFiles[] = {{"A"}, {"B"}};
constexpr Operand kAddress[] = {{"ADDRESS", BlockAddressFault}};

std::string SameFileConflict(const Arguments& arguments)
{
    return arguments[0] == arguments[1] ? "both names are the same file, which would be replaced" : "";
}

std::string RepairConflict(const Arguments& arguments)
{
    return arguments.Has("--to") && arguments.Has("--in-place")
               ? "--to writes another file than --in-place; choose one"
               : "";
}

constexpr Command kCommands[] = {
    {"new", "write the start-up image of a model region",
     "It has default settings, VFO bands and bank sizes and no channels.", kFile, kNewOptions, RunNew},
    {"read", "read the receiver into FILE",
     "Starts from FILE when it exists, so that notes and what is not read stay; a transfer that fails "
     "leaves FILE untouched. Where a block came disturbed or, with --verify, otherwise the second time, it "
     "is "
     "named, the status is 1, and FILE as it was is kept as FILE~.",
     kFile, kReadOptions, RunRead, ScopeConflict},
    {"write", "write FILE to the receiver",
     "Sends settings, VFO bands and presets, then banks and channels. Without --verify nothing is read "
     "back. A backup that fails keeps everything from being written.",
     kFile, kWriteOptions, RunWrite, ScopeConflict},
    {"verify", "compare the receiver with FILE",
     "Compares with what write of the same parts leaves behind. Prints nothing and ends with status 0 when "
     "they agree, else lists each block that differs, with the bytes in words.",
     kFile, kTransferOptions, RunVerify, ScopeConflict},
    {"export", "write FILE as CSV",
     "The file holds the channels and VFO bands, for a spreadsheet. OUT.csv may be missing, empty or an "
     "older export.",
     kExportFiles, kExportOptions, RunExport, SameFileConflict},
    {"import", "take the rows of a CSV file into FILE",
     "Rows that IN.csv does not name stay as they are. FILE is made when it does not exist. Notes with which "
     "FILE could not be opened again keep it from being written. Carrier codes move one up.",
     kImportFiles, kImportOptions, RunImport, SameFileConflict},
    {"show", "print the channels of FILE in columns", "A \"-\" in front of a label marks a row that is off.",
     kFile, kShowOptions, RunShow},
    {"print", "print FILE as text or PDF",
     "Settings, VFO table and memory channels in this order; without --settings, --vfo and --memory all "
     "three. \"Off\" marks a channel that is disabled.",
     kFile, kPrintOptions, RunPrint, PrintConflict},
    {"check",
     "say whether FILE is whole and what it holds",
     "Names the line that is wrong and why. Warns of notes that a save loses or a spreadsheet would run, and "
     "of values that are read otherwise than the file says them.",
     kFile,
     {},
     RunCheck},
    {"repair", "open a file again that its notes spoil",
     "Commas in notes become semicolons, quotes apostrophes; each such note is shown. Without --to and "
     "--in-place nothing is written.",
     kFile, kRepairOptions, RunRepair, RepairConflict},
    {"diff",
     "list what differs between two files",
     "Rows, settings, banks and notes are named. Status 1 when there is a difference.",
     kTwoFiles,
     {},
     RunDiff},
    {"ports",
     "list serial ports",
     "Each COM number with its device and whether it can be opened.",
     {},
     {},
     RunPorts},
    {"raw", "read one block and show the reply as it came",
     "ADDRESS is hexadecimal and that of a block: 0000 to FFF0, the last digit 0.", kAddress, kRawOptions,
     RunRaw},
};

}  // namespace

std::span<const Command> Commands()
{
    return kCommands;
}

const Command* FindCommand(std::string_view name)
{
    const auto found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                    [name](const Command& command) { return command.name == name; });
    return found != std::end(kCommands) ? found : nullptr;
}

}  // namespace rqm5
