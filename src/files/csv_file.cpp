#include "files/csv_file.h"

#include <algorithm>

#include "files/csv_fields.h"
#include "files/csv_groups.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

constexpr std::size_t kUsualSize = 192 * 1024;

constexpr std::string_view kTitles[] = {
    "MODEL", "BANK", "CHANNEL", "FREQUENCY",       "MODE",  "STEP", "OPTION", "SECRET",
    "TRAIN", "TONE", "SHIFT",   "SHIFT FREQUENCY", "NOTES", "SKIP", "ENABLE"};

std::string_view TruthText(bool value)
{
    return value ? "#TRUE#" : "#FALSE#";
}

void AddHeader(std::string& csv)
{
    for (const std::string_view title : kTitles) {
        AddQuotedField(csv, title);
        csv += ',';
    }
    csv.back() = '\r';
    csv += '\n';
}

/// The fields that VFO and memory records share: all but the last two, with a comma behind each.
void AddFields(std::string& csv, std::string_view bank, std::string_view channel, const ChannelTexts& texts)
{
    for (const std::string_view key : {kCsvModel, bank, channel}) {
        AddQuotedField(csv, key);
        csv += ',';
    }
    for (const std::string& text : texts) {
        AddQuotedField(csv, text);
        csv += ',';
    }
}

void AddMemoryRecord(std::string& csv, const CloneImage& image, const CsvGroup& group, int channel)
{
    const int row = group.first + channel;
    const auto index = static_cast<std::size_t>(row);
    const bool isScanEdge = &group == &kCsvGroups[kCsvProgramScan];
    AddFields(csv, group.bank, isScanEdge ? ProgramScanLabel(channel) : std::to_string(channel),
              image.MemText[index]);
    AddQuotedField(csv, TruthText(IsSkipped(image, row)));
    // The flag stands bare although the skip mark is a text: programs that read these files know both.
    csv += ',';
    csv += TruthText(image.MemEnable[index]);
    csv += "\r\n";
}

bool LooksLikeFormula(const std::string& note)
{
    // The wide forms too: some spreadsheets take them for the plain ones.
    constexpr std::string_view kStarts[] = {"=", "+", "-", "@", "\t", "\r", "＝", "＋", "－", "＠"};
    return std::ranges::any_of(kStarts, [&note](std::string_view start) { return note.starts_with(start); });
}

}  // namespace

std::string FormatCsv(const CloneImage& image)
{
    std::string csv;
    csv.reserve(kUsualSize);
    AddHeader(csv);
    for (std::size_t row = 0; row < image.VFOText.size(); ++row) {
        AddFields(csv, kCsvVfo, std::to_string(row), image.VFOText[row]);
        csv += "\"#FALSE#\",\"#TRUE#\"\r\n";
    }
    for (const CsvGroup& group : kCsvGroups)
        for (int channel = 0; channel < group.count; ++channel)
            AddMemoryRecord(csv, image, group, channel);
    return csv;
}

std::vector<std::string> NotesThatLookLikeFormulas(const CloneImage& image)
{
    std::vector<std::string> names;
    for (int row = 0; row < kVfoRows; ++row)
        if (LooksLikeFormula(image.VFOText[static_cast<std::size_t>(row)][kNote]))
            names.push_back(VfoRowName(row));
    for (int row = 0; row < kRadioRows; ++row)
        if (LooksLikeFormula(image.MemText[static_cast<std::size_t>(row)][kNote]))
            names.push_back(RowName(image, row));
    return names;
}

}  // namespace rqm5
