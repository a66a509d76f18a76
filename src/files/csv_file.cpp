#include "files/csv_file.h"

#include "files/csv_fields.h"
#include "files/csv_record.h"
#include "files/formula_guard.h"
#include "image/value_tables.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

constexpr std::size_t kUsualSize = 192 * 1024;

std::string_view TruthText(bool value)
{
    return value ? "#TRUE#" : "#FALSE#";
}

void AddHeader(std::string& csv)
{
    for (const std::string_view title : kCsvTitles) {
        AddQuotedField(csv, title);
        csv += ',';
    }
    csv.back() = '\r';
    csv += '\n';
}

/// The fields that VFO and memory records share: all but the last two, with a comma behind each.
void AddFields(std::string& csv, std::string_view bank, std::string_view channel, const Channel& row,
               RowKind kind)
{
    for (const std::string_view key : {kCsvModel, bank, channel}) {
        AddQuotedField(csv, key);
        csv += ',';
    }
    for (const Column column : kColumns) {
        AddQuotedField(csv, CellText(row, kind, kNoRegion, column));
        csv += ',';
    }
}

void AddMemoryRecord(std::string& csv, const Channel& row, std::string_view bank, std::string_view channel)
{
    AddFields(csv, bank, channel, row, RowKind::Memory);
    AddQuotedField(csv, TruthText(row.IsSkipped()));
    // The flag stands bare although the skip mark is a text: programs that read these files know both.
    csv += ',';
    csv += TruthText(row.enabled);
    csv += "\r\n";
}

}  // namespace

std::string FormatCsv(const CloneImage& image)
{
    std::string csv;
    csv.reserve(kUsualSize);
    AddHeader(csv);
    for (int row = 0; row < kVfoRows; ++row) {
        AddFields(csv, kCsvVfo, std::to_string(row), image.VFOData(row), RowKind::Vfo);
        csv += "\"#FALSE#\",\"#TRUE#\"\r\n";
    }
    for (int row = 0; row < kBankRows; ++row)
        AddMemoryRecord(csv, image.MemData(row), kCsvBankRows, std::to_string(row));
    for (const RowGroup& group : kRowGroups)
        for (int i = 0; i < group.rows.count; ++i)
            AddMemoryRecord(csv, image.MemData(group.rows.first + i), group.csvName,
                            group.isPairs ? ProgramScanLabel(i) : std::to_string(i));
    return csv;
}

std::vector<Message> NotesThatLookLikeFormulas(const CloneImage& image)
{
    std::vector<Message> names;
    for (int row = 0; row < kVfoRows; ++row)
        if (LooksLikeFormula(image.VFOData(row).note))
            names.push_back(VfoRowName(row));
    for (int row = 0; row < kRadioRows; ++row)
        if (LooksLikeFormula(image.MemData(row).note))
            names.push_back(RowName(image, row));
    return names;
}

}  // namespace rqm5
