#include <algorithm>
#include <vector>

#include "cli/command.h"
#include "cli/common_options.h"
#include "cli/edit_values.h"
#include "cli/list_import.h"
#include "cli/values.h"
#include "cli/write_changes.h"
#include "link/block_address.h"

namespace rqm5 {
namespace {

constexpr Option kNewOptions[] = {
    {"--region", "0..3", MESSAGE("model region (default 0)"), RegionFault},
    {"--empty", "", MESSAGE("no banks: all 1000 channels unassigned")},
    {"--force", "", MESSAGE("replace FILE if it exists")},
};
constexpr Option kVerifyOptions[] = {kPort, kOnly, kTransferBank, kJson, kTsv};
constexpr Option kReadOptions[] = {
    kPort,
    kOnly,
    kTransferBank,
    {"--verify", "", MESSAGE("read everything twice and list each block that was different the second time")},
};
constexpr Option kWriteOptions[] = {
    kPort,
    kOnly,
    kTransferBank,
    {"--backup", "COPY", MESSAGE("first read what will be replaced and save it as COPY, a new file"),
     FileNameFault},
    {"--verify", "", MESSAGE("read back afterwards and list each block that differs")},
    {"--changes", "",
     MESSAGE("write only what the receiver holds otherwise; what is not known of it is read first")},
    {"--known", "OLD.RQ5", MESSAGE("with --changes: what the receiver held when it was last read or written"),
     FileNameFault},
    {"--force", "", MESSAGE("write even if the backup shows that the receiver is another model")},
};
constexpr Option kShowOptions[] = {
    kBank, {"--all", "", MESSAGE("empty rows, too")}, kJson, kTsv, kFromFile,
};
constexpr Option kCheckOptions[] = {kJson, kFromFile};
constexpr Option kDiffOptions[] = {
    {"--port", "P", MESSAGE("compare A with the receiver: COM number 1 to 14, or a device"), PortNumberFault},
    kOnly,
    kTransferBank,
    kJson,
};
constexpr Option kPortsOptions[] = {kJson, kTsv};
constexpr Option kPrintOptions[] = {
    {"--pdf", "OUT.pdf", MESSAGE("write the pages to a PDF instead of the terminal")},
    {"--settings", "", MESSAGE("print the settings")},
    {"--vfo", "", MESSAGE("print the VFO table")},
    {"--memory", "", MESSAGE("print the memory channels")},
    kBank,
    {"--empty", "", MESSAGE("print empty rows, too")},
    {"--paper", "a4|letter", MESSAGE("size of the PDF's pages; without it that of the country"), PaperFault},
    {"--landscape", "", MESSAGE("turn the PDF's pages")},
    {"--force", "", MESSAGE("replace OUT.pdf whatever it holds")},
    kFromFile,
};
constexpr Option kExportOptions[] = {
    {"--to", "FOLDER", MESSAGE("export each FILE into this folder, under its own name with .csv"),
     FileNameFault},
    kFromFile,
    {"--force", "", MESSAGE("replace OUT.csv whatever it holds")},
};
constexpr Option kImportOptions[] = {
    {"--decimal-comma", "", MESSAGE("read 145,5 as 145.5")},
    {"--map", "COLUMN=FIELD,...",
     MESSAGE("what the columns of a list are, by title or number; such as \"Freq=frequency:kHz,3=note\""),
     MapFault},
    {"--from-row", "ROW",
     MESSAGE("where a list goes: from memory row 0 to 1209 on, or from BANK:CHANNEL, program-scan, "
             "search-pass or priority on; without it to the rows that it names"),
     FromRowFault},
    {"--dry-run", "", MESSAGE("show what would change and write nothing")},
    {"--keep", "", MESSAGE("keep FILE as it was as FILE~")},
    {"--safe-notes", "", MESSAGE("store notes without commas and quotes, which a clone file cannot hold")},
    {"--force", "", MESSAGE("write FILE even if its notes keep it from being opened again")},
};
constexpr Option kRepairOptions[] = {
    {"--to", "NEW", MESSAGE("write the repaired file under this name, which no file has yet"), FileNameFault},
    {"--in-place", "", MESSAGE("replace FILE, which is kept as FILE~")},
};
constexpr Option kRawOptions[] = {kPort};

constexpr Operand kFile[] = {{"FILE"}};
constexpr Operand kFiles[] = {{"FILE", nullptr, Count::Any}};
constexpr Operand kImportFiles[] = {{"IN.csv"}, {"FILE"}};
constexpr Operand kTwoFiles[] = {{"A"}, {"B", nullptr, Count::Optional}};
constexpr Operand kAddress[] = {{"ADDRESS", BlockAddressFault}};

Message SameFileConflict(const Arguments& arguments)
{
    return arguments[0] == arguments[1] ? MESSAGE("both names are the same file, which would be replaced")
                                        : Message();
}

Message RepairConflict(const Arguments& arguments)
{
    return arguments.Has("--to") && arguments.Has("--in-place")
               ? MESSAGE("--to writes another file than --in-place; choose one")
               : Message();
}

constexpr Command kCommands[] = {
    {"new", MESSAGE("write the start-up image of a model region"),
     MESSAGE("It has default settings, VFO bands and bank sizes and no channels."), kFile, kNewOptions,
     RunNew},
    {"read", MESSAGE("read the receiver into FILE"),
     MESSAGE("If FILE exists, it is the starting point: notes and what is not read stay. If the "
             "transfer fails, FILE is left untouched. If a block arrives damaged or, with --verify, "
             "different the second time, it is listed, the status is 1, and the old file is kept as "
             "FILE~."),
     kFile, kReadOptions, RunRead, ScopeConflict},
    {"write", MESSAGE("write FILE to the receiver"),
     MESSAGE("Sends settings, VFO bands and presets, then banks and channels. Without --verify "
             "nothing is read back. If the backup fails, nothing is written. With --changes each "
             "block that is to be written is read first, and nothing is written if it was changed at "
             "the receiver, too."),
     kFile, kWriteOptions, RunWrite, WriteConflict},
    {"verify", MESSAGE("compare the receiver with FILE"),
     MESSAGE("Compares with what write of the same parts leaves behind. Prints nothing and ends with "
             "status 0 when they agree, else lists each block that differs, with the bytes in words."),
     kFile, kVerifyOptions, RunVerify, ScopeAndFormFault},
    {"export", MESSAGE("write FILE as CSV"),
     MESSAGE("The file holds the channels and VFO bands, for a spreadsheet. OUT.csv may be missing, "
             "empty or an older export. With --to, each FILE is exported into the folder."),
     kFiles, kExportOptions, RunExport, ExportFault, "FILE OUT.csv | --to FOLDER FILE..."},
    {"import", MESSAGE("take the rows of a CSV file or of a list into FILE"),
     MESSAGE("Rows that IN.csv does not name stay as they are. FILE is made when it does not exist. "
             "Notes with which FILE could not be opened again keep it from being written. Carrier "
             "codes of an export move one up. A file of another program is read as a list: how it is "
             "read is said, and what is not taken is listed by line."),
     kImportFiles, kImportOptions, RunImport, SameFileConflict},
    {"show", MESSAGE("print the channels of each FILE in columns"),
     MESSAGE("Rows that hold a channel or a note; \"x\" marks a channel that is off."), kFiles, kShowOptions,
     RunShow, FilesFault},
    {"print", MESSAGE("print each FILE as text, or one as PDF"),
     MESSAGE("Settings, VFO table and memory channels in this order; without --settings, --vfo and "
             "--memory all three. \"Off\" marks a channel that is disabled."),
     kFiles, kPrintOptions, RunPrint, PrintFault},
    {"check", MESSAGE("check that each FILE is complete, and say what it holds"),
     MESSAGE("Names the line that is wrong and why. Warns of notes that a save loses or a spreadsheet "
             "would run, and of values that are read differently from what the file says. Several "
             "files take one line each; --verbose lists their warnings, --quiet names only those that "
             "are not whole."),
     kFiles, kCheckOptions, RunCheck, FilesFault},
    {"repair", MESSAGE("mend a file that cannot be opened because of its notes"),
     MESSAGE("Commas in notes become semicolons, quotes apostrophes; each such note is shown. Without "
             "--to and --in-place nothing is written."),
     kFile, kRepairOptions, RunRepair, RepairConflict},
    {"diff", MESSAGE("list what differs between two files, or a file and the receiver"),
     MESSAGE("Rows, settings, banks and notes are named. Status 1 when there is a difference."), kTwoFiles,
     kDiffOptions, RunDiff, DiffFault, "A B | --port P A"},
    {"ports",
     MESSAGE("list serial ports"),
     MESSAGE("Each COM number with its device and whether it can be opened."),
     {},
     kPortsOptions,
     RunPorts,
     FormFault},
    {"raw", MESSAGE("read one block and show the reply as it came"),
     MESSAGE("ADDRESS is hexadecimal and that of a block: 0000 to FFF0, the last digit 0."), kAddress,
     kRawOptions, RunRaw},
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
