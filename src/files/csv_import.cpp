#include <algorithm>
#include <optional>

#include "files/csv_fields.h"
#include "files/csv_file.h"
#include "files/csv_record.h"
#include "files/csv_rows.h"
#include "files/list_encoding.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

std::string KeyText(const std::string& field)
{
    const std::size_t first = field.find_first_not_of(" \t");
    return first == std::string::npos
               ? std::string()
               : UpperCase(std::string_view(field).substr(first, field.find_last_not_of(" \t") - first + 1));
}

/// Numbers of a spreadsheet that writes them with a comma, as this program writes them.
void TakeCommasAsPoints(CsvRecord& record)
{
    for (const Column column : {kFrequency, kStep, kTone, kShiftFrequency}) {
        std::string& text = record.texts.at(column);
        if (HasDecimalComma(text))
            text[text.find(',')] = '.';
    }
}

/// Reads a text record by record. Fields are a stream: a record is as long as it should be, whatever lines it
/// goes over.
class CsvImport
{
  public:
    CsvImport(std::string_view text, CloneImage& image, CsvNumbers numbers)
        : reader_(text), image_(image), numbers_(numbers)
    {
    }

    CsvTaken Run();

  private:
    std::optional<RowId> ReadRow(const std::string& model);
    std::optional<CsvRecord> ReadRecord(RowId id);
    void Store(const CsvRecord& record, RowId id);
    void Tell(Message text) { taken_.findings.Add(line_, std::move(text)); }

    CsvFieldReader reader_;
    CloneImage& image_;
    CsvNumbers numbers_;
    CsvTaken taken_;
    int line_ = 1;           ///< of the record that is read
    bool isAtStart_ = true;  ///< the next field begins a line
};

/// Reads on from a field that should be a MODEL.
/// \return the row that the record names, nothing when it is to be passed over
std::optional<RowId> CsvImport::ReadRow(const std::string& model)
{
    const bool beginsLine = isAtStart_;
    isAtStart_ = reader_.EndsLine();
    if (model != kCsvModel) {
        const bool isTitles = model == kCsvTitles.front();
        if (beginsLine && !isTitles && !(model.empty() && reader_.EndsLine())) {
            line_ = reader_.Line();
            Tell({MESSAGE("it does not begin with %1 and is passed over"), {kCsvModel}});
        }
        return std::nullopt;
    }
    line_ = reader_.Line();
    const auto bank = reader_.Next();
    isAtStart_ = reader_.EndsLine();
    if (!bank || !IsCsvBank(KeyText(*bank))) {
        Tell({MESSAGE("there is no table \"%1\"; the record is passed over"), {bank.value_or("")}});
        return std::nullopt;
    }
    const auto channel = reader_.Next();
    isAtStart_ = reader_.EndsLine();
    const auto row =
        !channel || KeyText(*channel).empty() ? std::nullopt : FindCsvRow(KeyText(*bank), KeyText(*channel));
    if (!row)
        Tell({MESSAGE("%1 has no channel \"%2\"; the record is passed over"), {*bank, channel.value_or("")}});
    return row;
}

std::optional<CsvRecord> CsvImport::ReadRecord(RowId id)
{
    const auto tell = [&](const char* text) {
        Tell(Message(MESSAGE("%1: %2"), {RowName(image_, id), text}));
    };
    CsvRecord record;
    bool isShort = false;
    const auto take = [&](std::string& text) {
        isShort = isShort || reader_.EndsLine();
        auto field = reader_.Next();
        if (!field)
            return false;
        text = *std::move(field);
        return true;
    };
    bool isWhole = std::ranges::all_of(record.texts, take);
    isWhole = isWhole && take(record.skip) && take(record.enable);
    isAtStart_ = reader_.EndsLine();
    if (!isWhole) {
        tell(MESSAGE("the record is short and is passed over"));
        return std::nullopt;
    }
    if (isShort)
        tell(MESSAGE("the record is short; what stands in the next line was read into it"));
    else if (!reader_.EndsLine())
        tell(MESSAGE("the record has more than 15 fields; the rest is passed over"));
    return record;
}

void CsvImport::Store(const CsvRecord& record, RowId id)
{
    Channel& row = image_.At(id);
    const Channel before = row;
    const CsvValues values = ReadCsvValues(record);
    if (StoreRecord(record, values, id.kind, row))
        ++taken_.movedCarriers;
    ++taken_.rows;
    JudgeRecord({record, values, line_, id, before}, image_, taken_.findings);
}

CsvTaken CsvImport::Run()
{
    while (const auto model = reader_.Next()) {
        const auto id = ReadRow(*model);
        if (!id)
            continue;
        auto record = ReadRecord(*id);
        if (!record)
            break;
        if (numbers_ == CsvNumbers::DecimalCommas)
            TakeCommasAsPoints(*record);
        Store(*record, *id);
    }
    return std::move(taken_);
}

}  // namespace

CsvTaken ParseCsv(std::string_view text, CloneImage& image, CsvNumbers numbers)
{
    const std::string decoded = DecodeCsv(text);
    return CsvImport(decoded, image, numbers).Run();
}

bool IsOwnCsv(std::string_view bytes)
{
    const std::string text = DecodeCsv(bytes);
    CsvFieldReader reader(text);
    std::vector<std::string> fields;
    while (auto field = reader.Next()) {
        fields.push_back(*std::move(field));
        if (fields.back() == kCsvModel)
            return true;
        if (reader.EndsLine() && fields != std::vector<std::string>{""})
            break;
        if (reader.EndsLine())
            fields.clear();
    }
    return std::ranges::equal(fields, kCsvTitles);
}

}  // namespace rqm5
