#include <algorithm>
#include <vector>

#include "cli/command.h"
#include "cli/common_options.h"
#include "cli/edit_values.h"
#include "cli/values.h"
#include "link/block_address.h"

namespace rqm5 {
namespace {

constexpr Option kNewOptions[] = {
    {"--region", "0..3", "model region (default 0)", RegionFault},
    {"--empty", "", "no banks: all 1000 channels unassigned"},
    {"--force", "", "replace FILE if it exists"},
};
constexpr Option kVerifyOptions[] = {kPort, kOnly, kTransferBank, kJson, kTsv};
constexpr Option kReadOptions[] = {
    kPort,
    kOnly,
    kTransferBank,
    {"--verify", "", "read everything twice and list each block that was different the second time"},
};
constexpr Option kWriteOptions[] = {
    kPort,
    kOnly,
    kTransferBank,
    {"--backup", "COPY", "first read what will be replaced and save it as COPY, a new file", FileNameFault},
    {"--verify", "", "read back afterwards and list each block that differs"},
    {"--force", "", "write even if the backup shows that the receiver is another model"},
};
constexpr Option kShowOptions[] = {
    kBank, {"--all", "", "empty rows, too"}, kJson, kTsv, kFromFile,
};
constexpr Option kCheckOptions[] = {kJson, kFromFile};
constexpr Option kDiffOptions[] = {
    {"--port", "P", "compare A with the receiver: COM number 1 to 14, or a device", PortNumberFault},
    kOnly,
    kTransferBank,
    kJson,
};
constexpr Option kPortsOptions[] = {kJson, kTsv};
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
    kFromFile,
};
constexpr Option kExportOptions[] = {
    {"--to", "FOLDER", "export each FILE into this folder, under its own name with .csv", FileNameFault},
    kFromFile,
    {"--force", "", "replace OUT.csv whatever it holds"},
};
constexpr Option kImportOptions[] = {
    {"--safe-notes", "", "store notes without commas and quotes, which a clone file cannot hold"},
    {"--force", "", "write FILE even if its notes keep it from being opened again"},
};
constexpr Option kRepairOptions[] = {
    {"--to", "NEW", "write the repaired file under this name, which no file has yet", FileNameFault},
    {"--in-place", "", "replace FILE, which is kept as FILE~"},
};
constexpr Option kRawOptions[] = {kPort};

constexpr Operand kFile[] = {{"FILE"}};
constexpr Operand kFiles[] = {{"FILE", nullptr, Count::Any}};
constexpr Operand kImportFiles[] = {{"IN.csv"}, {"FILE"}};
constexpr Operand kTwoFiles[] = {{"A"}, {"B", nullptr, Count::Optional}};
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
     "If FILE exists, it is the starting point: notes and what is not read stay. If the transfer fails, FILE "
     "is left untouched. If a block arrives damaged or, with --verify, different the second time, it is "
     "listed, the status is 1, and the old file is kept as FILE~.",
     kFile, kReadOptions, RunRead, ScopeConflict},
    {"write", "write FILE to the receiver",
     "Sends settings, VFO bands and presets, then banks and channels. Without --verify nothing is read "
     "back. If the backup fails, nothing is written.",
     kFile, kWriteOptions, RunWrite, ScopeConflict},
    {"verify", "compare the receiver with FILE",
     "Compares with what write of the same parts leaves behind. Says nothing and ends with status 0 when "
     "they agree, else lists each block that differs, with the bytes in words.",
     kFile, kVerifyOptions, RunVerify, ScopeAndFormFault},
    {"export", "write FILE as CSV",
     "The file holds the channels and VFO bands, for a spreadsheet. OUT.csv may be missing, empty or an "
     "older export. With --to, each FILE is exported into the folder.",
     kFiles, kExportOptions, RunExport, ExportFault, "FILE OUT.csv | --to FOLDER FILE..."},
    {"import", "take the rows of a CSV file into FILE",
     "Rows that IN.csv does not name stay as they are. FILE is made when it does not exist. Notes with which "
     "FILE could not be opened again keep it from being written. Carrier codes move one up.",
     kImportFiles, kImportOptions, RunImport, SameFileConflict},
    {"show", "print the channels of each FILE in columns",
     "Rows that hold a channel or a note; \"x\" marks a channel that is off.", kFiles, kShowOptions, RunShow,
     FilesFault},
    {"print", "print each FILE as text, or one as PDF",
     "Settings, VFO table and memory channels in this order; without --settings, --vfo and --memory all "
     "three. \"Off\" marks a channel that is disabled.",
     kFiles, kPrintOptions, RunPrint, PrintFault},
    {"check", "check that each FILE is complete, and say what it holds",
     "Names the line that is wrong and why. Warns of notes that a save loses or a spreadsheet would run, and "
     "of values that are read differently from what the file says. Several files take one line each; "
     "--verbose lists their warnings, --quiet names only those that are not whole.",
     kFiles, kCheckOptions, RunCheck, FilesFault},
    {"repair", "mend a file that cannot be opened because of its notes",
     "Commas in notes become semicolons, quotes apostrophes; each such note is shown. Without --to and "
     "--in-place nothing is written.",
     kFile, kRepairOptions, RunRepair, RepairConflict},
    {"diff", "list what differs between two files, or a file and the receiver",
     "Rows, settings, banks and notes are named. Status 1 when there is a difference.", kTwoFiles,
     kDiffOptions, RunDiff, DiffFault, "A B | --port P A"},
    {"ports",
     "list serial ports",
     "Each COM number with its device and whether it can be opened.",
     {},
     kPortsOptions,
     RunPorts,
     FormFault},
    {"raw", "read one block and show the reply as it came",
     "ADDRESS is hexadecimal and that of a block: 0000 to FFF0, the last digit 0.", kAddress, kRawOptions,
     RunRaw},
};

}  // namespace

std::span<const Command> Commands()
{
    static const std::vector<Command> commands = [] {
        std::vector<Command> all(std::begin(kCommands), std::end(kCommands));
        all.insert(all.end(), EditCommands().begin(), EditCommands().end());
        return all;
    }();
    return commands;
}

const Command* FindCommand(std::string_view name)
{
    const auto found = std::ranges::find(Commands(), name, &Command::name);
    return found != Commands().end() ? &*found : nullptr;
}

}  // namespace rqm5
