#include <algorithm>
#include <ostream>

#include "cli/channel_output.h"
#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/file_list.h"
#include "cli/streams.h"
#include "cli/text_table.h"
#include "files/clone_file.h"
#include "files/clone_lines.h"
#include "files/csv_file.h"
#include "files/round_trip.h"
#include "image/display_text.h"
#include "image/value_tables.h"
#include "memory/bank_layout.h"
#include "memory/receiver_range.h"
#include "settings/setting_texts.h"

namespace rqm5 {
namespace {

/// What the rows of a group hold, as a line of the table.
std::vector<std::string> Summary(const CloneImage& image, const std::string& name, RowRange rows)
{
    int channels = 0;
    int enabled = 0;
    int skipped = 0;
    int notes = 0;
    for (int row = rows.first; row <= rows.Last(); ++row) {
        const Channel& channel = image.MemData(row);
        channels += channel.HasChannel() ? 1 : 0;
        enabled += channel.enabled ? 1 : 0;
        skipped += channel.IsSkipped() ? 1 : 0;
        notes += channel.note.empty() ? 0 : 1;
    }
    std::vector<std::string> cells = {name};
    for (const int count : {rows.count, channels, enabled, skipped, notes})
        cells.push_back(std::to_string(count));
    return cells;
}

void PrintGroups(const CloneImage& image, std::ostream& out)
{
    TextTable table;
    table.AddRow({"", "Rows", "Channels", "On", "Skipped", "Notes"});
    for (int selector = 0; selector < kSelectorEntries; ++selector) {
        const RowRange rows = GroupRows(image, selector);
        if (selector == kSelectProgramScan) {
            const int used = TotalBankSize(image);
            table.AddRow(Summary(image, "In no bank", {used, kBankRows - used}));
        }
        if (rows.count > 0)
            table.AddRow(Summary(image, SelectorText(selector).English(), rows));
    }
    table.Print(out);
}

void PrintContents(const CloneImage& image, std::ostream& out)
{
    int notes = 0;
    for (int row = 0; row < kVfoRows; ++row)
        notes += image.VFOData(row).note.empty() ? 0 : 1;
    std::string links;
    for (int bank = 0; bank < kBanks; ++bank)
        if (image.BankLink(bank))
            links += ' ' + std::to_string(bank);
    const int model = SettingIndex(&ReceiverSettings::model);
    out << SettingCaption(model).English() << ": " << SettingText(image.Settings(), model).English()
        << " (region " << image.ModelNo() << ")\n";
    out << "VFO bands: " << RegionOf(image.ModelNo()).vfoBands << ", notes: " << notes << '\n';
    out << "Linked banks:" << (links.empty() ? " none" : links) << '\n';
    PrintGroups(image, out);
}

struct Warning
{
    const char* kind;  ///< in JSON
    Message text;
    std::vector<Message> rows = {};
};

using Warnings = std::vector<Warning>;

void AddRows(const char* kind, const Message& text, std::vector<Message> rows, Warnings& warnings)
{
    if (!rows.empty())
        warnings.push_back({kind, text, std::move(rows)});
}

/// What a program that is stricter than this one would stumble over.
void AddForm(std::string_view bytes, Warnings& warnings)
{
    for (std::size_t at = bytes.find('\n'); at != std::string_view::npos; at = bytes.find('\n', at + 1))
        if (at == 0 || bytes[at - 1] != '\r') {
            warnings.push_back(
                {"line-ends",
                 MESSAGE("lines end in LF instead of CR LF; this program reads them, another may not")});
            break;
        }
    const std::size_t end = bytes.rfind(FileEnd);
    if (end != std::string_view::npos &&
        bytes.find_first_not_of("\r\n", end + FileEnd.size()) != std::string_view::npos)
        warnings.push_back({"text-behind", MESSAGE("there is text behind the last line; a save drops it")});
}

bool HoldsBlock(int line)
{
    return (line > kStartLine && line < kVfoNoteLine) || (line >= kBankLine && line < kEndLine);
}

/// Blocks are taken as they come; what a stranger made of them may have been meant otherwise.
void AddDigits(std::string_view bytes, Warnings& warnings)
{
    std::vector<Message> lines;
    CloneLineReader reader(bytes);
    for (int number = kStartLine; const auto line = reader.NextLine(); ++number)
        if (HoldsBlock(number) && line->find_first_not_of("0123456789ABCDEF") != std::string_view::npos)
            lines.push_back({MESSAGE("line %1 (%2)"), {number + 1, CloneLineName(number)}});
    AddRows(
        "digits",
        MESSAGE("characters other than upper-case hexadecimal digits may be read as 0; there are some in:"),
        std::move(lines), warnings);
}

Warnings WarningsOf(std::string_view bytes, const CloneImage& image)
{
    Warnings warnings;
    AddForm(bytes, warnings);
    AddDigits(bytes, warnings);
    AddRows("values", MESSAGE("these values are read differently from what the file says:"),
            ValuesReadOtherwise(bytes, image), warnings);
    std::vector<Message> outside = VfoRowsOutOfRange(image);
    for (Message& row : RowsOutOfRange(image, {0, kRadioRows}))
        outside.push_back(std::move(row));
    AddRows("range", {MESSAGE("these rows are outside the receiver's range (%1):"), {kReceiverRangeText}},
            std::move(outside), warnings);
    AddRows("notes", MESSAGE("a save loses these notes; take commas and quotes out of them:"),
            NotesThatDoNotSurvive(image), warnings);
    AddRows("formulas", MESSAGE("exported as CSV, a spreadsheet would run these notes as formulas:"),
            NotesThatLookLikeFormulas(image), warnings);
    return warnings;
}

struct Counts
{
    int channels = 0;
    int enabled = 0;
};

Counts CountsOf(const CloneImage& image)
{
    Counts counts;
    for (int row = 0; row < kRadioRows; ++row) {
        counts.channels += image.MemData(row).HasChannel() ? 1 : 0;
        counts.enabled += image.MemData(row).enabled ? 1 : 0;
    }
    return counts;
}

/// A file among many: one line.
void PrintLine(const InputFile& file, const CloneImage& image, const Warnings& warnings, Console& console)
{
    const Counts counts = CountsOf(image);
    const int model = SettingIndex(&ReceiverSettings::model);
    console.out << VisibleText(file.name) << ": " << Painted("whole", Paint::Green, console.paintsOut) << ", "
                << SettingText(image.Settings(), model).English() << ", " << counts.channels
                << (counts.channels == 1 ? " channel, " : " channels, ") << counts.enabled << " on";
    if (!warnings.empty())
        console.out << ", " << warnings.size() << (warnings.size() == 1 ? " warning" : " warnings");
    console.out << '\n';
}

void WriteFile(const InputFile& file, const CloneImage& image, const Warnings& warnings, JsonWriter& json)
{
    const Counts counts = CountsOf(image);
    json.Open('{');
    json.Member("file", file.name);
    json.Member("whole", true);
    json.Member("model", ModelNames()[static_cast<std::size_t>(image.ModelNo())]);
    json.Member("region", image.ModelNo());
    json.Member("channels", counts.channels);
    json.Member("enabled", counts.enabled);
    json.Key("warnings").Open('[');
    for (const Warning& warning : warnings) {
        json.Open('{');
        json.Member("kind", warning.kind);
        json.Member("text", warning.text.English());
        json.Key("rows").Open('[');
        for (const Message& row : warning.rows)
            json.Text(row.English());
        json.Close(']');
        json.Close('}');
    }
    json.Close(']');
    json.Close('}');
}

void WriteProblem(const InputFile& file, const Problem& problem, JsonWriter& json)
{
    json.Open('{');
    json.Member("file", file.name);
    json.Member("whole", false);
    json.Member("error", problem.text);
    json.Member("details", problem.details.English());
    json.Close('}');
}

void PrintReport(const InputFile& file, const CloneImage& image, const Warnings& warnings, Console& console)
{
    if (!console.isQuiet && file.isOneOfSeveral) {
        PrintLine(file, image, warnings, console);
    } else if (!console.isQuiet) {
        console.out << VisibleText(SourceName(file.name).English()) << " is whole.\n";
        PrintContents(image, console.out);
    }
    if (file.isOneOfSeveral && !console.isVerbose)
        return;
    for (const Warning& warning : warnings)
        Warn(console, warning.text, warning.rows);
}

}  // namespace

Status RunCheck(const Arguments& arguments, Console& console)
{
    const bool isJson = arguments.Has("--json");
    JsonWriter json(console.out);
    int whole = 0;
    int broken = 0;
    if (isJson)
        json.Open('[');
    const UseFile use = [&](const InputFile& file, const CloneImage& image) {
        const Warnings warnings = WarningsOf(file.bytes, image);
        ++whole;
        if (isJson)
            WriteFile(file, image, warnings, json);
        else
            PrintReport(file, image, warnings, console);
        return Status::Done;
    };
    const UseProblem onProblem = [&](const InputFile& file, const Problem& problem) {
        ++broken;
        if (isJson)
            WriteProblem(file, problem, json);
    };
    const Status status = ForEachFile(arguments, console, use, onProblem);
    if (isJson) {
        json.Close(']');
        console.out << '\n';
    }
    if (whole + broken > 1)
        TellEnd(console, {MESSAGE("%1 of %2 files are whole."), {whole, whole + broken}});
    return status;
}

}  // namespace rqm5
