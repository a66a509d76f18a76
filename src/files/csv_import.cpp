#include <algorithm>
#include <cmath>
#include <optional>

#include "files/csv_fields.h"
#include "files/csv_file.h"
#include "files/csv_record.h"
#include "files/text_encoding.h"
#include "image/number_text.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string KeyText(const std::string& field)
{
    return UpperCase(Trimmed(field));
}

bool IsTrue(const std::string& field)
{
    const std::string text = KeyText(field);
    return text == "#TRUE#" || text == "TRUE";
}

/// A channel number 0 to count - 1 typed as digits, nothing for any other text.
std::optional<int> ChannelNumber(const std::string& channel, int count)
{
    const bool isNumber = channel.front() >= '0' && channel.front() <= '9';
    const double number = ReadNumber(channel);
    if (!isNumber || number != std::trunc(number) || number >= count)
        return std::nullopt;
    return static_cast<int>(number);
}

/// The Program Scan edge of a label: P0A to P49B as an export writes them, 0A to 49B as the table does.
std::optional<int> ScanEdge(std::string_view channel)
{
    if (channel.starts_with('P'))
        channel.remove_prefix(1);
    const int pair = ReadInteger(channel);
    const int edge = 2 * std::clamp(pair, 0, 49) + (channel.ends_with('B') ? 1 : 0);
    return channel == ProgramScanLabel(edge).substr(1) ? std::optional(edge) : std::nullopt;
}

/// The channel of a label: 0, 1, ... as an export writes it, or behind the prefix that the table of all
/// rows has.
std::optional<int> LabelledChannel(std::string_view channel, std::string_view prefix, int count)
{
    if (channel.starts_with(prefix))
        channel.remove_prefix(prefix.size());
    const int number = ReadInteger(channel);
    const bool isLabel = number >= 0 && number < count && channel == std::to_string(number);
    return isLabel ? std::optional(number) : std::nullopt;
}

std::optional<int> GroupChannel(const std::string& channel, const RowGroup& group)
{
    return group.isPairs ? ScanEdge(channel)
                         : LabelledChannel(channel, UpperCase(group.rowPrefix), group.rows.count);
}

const RowGroup* GroupNamed(std::string_view bank)
{
    const auto* found = std::ranges::find(kRowGroups, bank, &RowGroup::csvName);
    return found != kRowGroups.end() ? found : nullptr;
}

std::optional<RowId> FindRow(const std::string& bank, const std::string& channel)
{
    std::optional<int> row;
    const RowKind kind = bank == kCsvVfo ? RowKind::Vfo : RowKind::Memory;
    if (kind == RowKind::Vfo) {
        row = ChannelNumber(channel, kVfoRows);
    } else if (const RowGroup* group = GroupNamed(bank)) {
        row = GroupChannel(channel, *group);
        if (row)
            *row += group->rows.first;
    } else {
        row = ChannelNumber(channel, kBankRows);
    }
    return row ? std::optional(RowId{kind, *row}) : std::nullopt;
}

bool IsBank(const std::string& bank)
{
    return bank == kCsvVfo || bank == kCsvBankRows || GroupNamed(bank) != nullptr;
}

std::optional<CsvRecord> ReadRecord(CsvFieldReader& reader)
{
    CsvRecord record;
    for (std::string& text : record.texts) {
        auto field = reader.Next();
        if (!field)
            return std::nullopt;
        text = *std::move(field);
    }
    const auto skip = reader.Next();
    const auto enable = reader.Next();
    if (!skip || !enable)
        return std::nullopt;
    record.isSkipped = IsTrue(*skip);
    record.isEnabled = IsTrue(*enable);
    return record;
}

/// Reads on from a field that should be a MODEL.
/// \return the row that the record names, nothing when it is to be passed over
std::optional<RowId> ReadRow(CsvFieldReader& reader, const std::string& model)
{
    if (model != kCsvModel)
        return std::nullopt;
    const auto bank = reader.Next();
    if (!bank || !IsBank(KeyText(*bank)))
        return std::nullopt;
    const auto channel = reader.Next();
    if (!channel || KeyText(*channel).empty())
        return std::nullopt;
    return FindRow(KeyText(*bank), KeyText(*channel));
}

}  // namespace

CsvTaken ParseCsv(std::string_view text, CloneImage& image)
{
    const std::string decoded = DecodeFileText(text);
    CsvFieldReader reader(decoded);
    CsvTaken taken;
    while (const auto model = reader.Next()) {
        const auto id = ReadRow(reader, *model);
        if (!id)
            continue;
        const auto record = ReadRecord(reader);
        if (!record)
            break;
        if (StoreRecord(*record, id->kind, image.At(*id)))
            ++taken.movedCarriers;
        ++taken.rows;
    }
    return taken;
}

}  // namespace rqm5
