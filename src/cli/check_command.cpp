#include <algorithm>
#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/text_table.h"
#include "files/clone_file.h"
#include "files/clone_lines.h"
#include "files/csv_file.h"
#include "files/file_store.h"
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
            table.AddRow(Summary(image, SelectorText(selector), rows));
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
    out << SettingCaption(model) << ": " << SettingText(image.Settings(), model) << " (region "
        << image.ModelNo() << ")\n";
    out << "VFO bands: " << RegionOf(image.ModelNo()).vfoBands << ", notes: " << notes << '\n';
    out << "Linked banks:" << (links.empty() ? " none" : links) << '\n';
    PrintGroups(image, out);
}

/// What a program that is stricter than this one would stumble over.
void WarnOfForm(std::string_view bytes, Console& console)
{
    for (std::size_t at = bytes.find('\n'); at != std::string_view::npos; at = bytes.find('\n', at + 1))
        if (at == 0 || bytes[at - 1] != '\r') {
            Warn(console, "lines end in LF in place of CR LF; this program reads them, another may not", {});
            break;
        }
    const std::size_t end = bytes.rfind(FileEnd);
    if (end != std::string_view::npos &&
        bytes.find_first_not_of("\r\n", end + FileEnd.size()) != std::string_view::npos)
        Warn(console, "there is text behind the last line; a save drops it", {});
}

bool HoldsBlock(int line)
{
    return (line > kStartLine && line < kVfoNoteLine) || (line >= kBankLine && line < kEndLine);
}

/// Blocks are taken as they come; what a stranger made of them may have been meant otherwise.
void WarnOfDigits(std::string_view bytes, Console& console)
{
    std::vector<std::string> lines;
    CloneLineReader reader(bytes);
    for (int number = kStartLine; const auto line = reader.NextLine(); ++number)
        if (HoldsBlock(number) && line->find_first_not_of("0123456789ABCDEF") != std::string_view::npos)
            lines.push_back("line " + std::to_string(number + 1) + " (" + CloneLineName(number) + ")");
    if (!lines.empty())
        Warn(console,
             "what is no upper-case hexadecimal digit may be read as 0; other characters stand in:", lines);
}

void WarnOfNotes(const CloneImage& image, Console& console)
{
    const std::vector<std::string> lost = NotesThatDoNotSurvive(image);
    if (!lost.empty())
        Warn(console, "a save loses these notes; take commas and quotes out of them:", lost);
    const std::vector<std::string> formulas = NotesThatLookLikeFormulas(image);
    if (!formulas.empty())
        Warn(console, "exported as CSV, a spreadsheet would run these notes as formulas:", formulas);
}

void WarnOfValues(std::string_view bytes, const CloneImage& image, Console& console)
{
    const std::vector<std::string> changed = ValuesReadOtherwise(bytes, image);
    if (!changed.empty())
        Warn(console, "the file says these values, but they are read otherwise:", changed);
}

void WarnOfRange(const CloneImage& image, Console& console)
{
    std::vector<std::string> rows = VfoRowsOutOfRange(image);
    for (std::string& row : RowsOutOfRange(image, {0, kRadioRows}))
        rows.push_back(std::move(row));
    if (!rows.empty())
        Warn(console,
             "these rows are outside the receiver's range (" + std::string(kReceiverRangeText) + "):", rows);
}

}  // namespace

Status RunCheck(const Arguments& arguments, Console& console)
{
    CloneImage image;
    std::string bytes;
    auto problem = Load(arguments[0], image);
    if (!problem)
        problem = ReadWholeFile(PathOf(arguments[0]), bytes);
    if (problem)
        return Fail(console, *problem);
    console.out << VisibleText(arguments[0]) << " is whole.\n";
    PrintContents(image, console.out);
    WarnOfForm(bytes, console);
    WarnOfDigits(bytes, console);
    WarnOfValues(bytes, image, console);
    WarnOfRange(image, console);
    WarnOfNotes(image, console);
    return Status::Done;
}

}  // namespace rqm5
