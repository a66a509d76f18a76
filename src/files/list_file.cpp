#include "files/list_file.h"

#include <algorithm>
#include <array>

#include "files/formula_guard.h"
#include "image/value_tables.h"
#include "memory/channel_parts.h"
#include "memory/named_rows.h"

namespace rqm5 {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::array<std::string_view, 3> kShiftWords = {"Off", "Plus", "Minus"};
constexpr int kShiftUnit = 16;

/// The text of a cell, but that a shift begins with no sign, which would begin a formula, and that a carrier
/// says its own code however it came in.
std::string TextOf(const Channel& channel, Column column)
{
    if (column == kShift)
        return std::string(channel.shift % kShiftUnit == 0 ? TextAt(kShiftWords, channel.shift / kShiftUnit)
                                                           : std::string_view());
    Channel plain = channel;
    plain.isCarrierImported = false;
    return CellText(plain, RowKind::Memory, kNoRegion, column);
}

bool IsNumeric(int part)
{
    return part == kFrequency || part == kShiftFrequency || part == kStep || part == kTone;
}

std::string FieldOf(const CloneImage& image, int row, int part, DecimalSign decimals)
{
    const Channel& channel = image.MemData(row);
    if (part < ListColumn::kIgnored) {
        const ListedPlace place = PlaceInList(image, row);
        return part == ListColumn::kBank      ? place.bank
               : part == ListColumn::kChannel ? place.channel
                                              : std::to_string(row);
    }
    if (part == kSkipPart || part == kEnabledPart)
        return (part == kSkipPart ? channel.IsSkipped() : channel.enabled) ? "yes" : "no";
    if (part == kNote)
        return WithGuard(channel.note);
    std::string text = TextOf(channel, static_cast<Column>(part));
    if (decimals == DecimalSign::Comma && IsNumeric(part))
        std::ranges::replace(text, '.', ',');
    return text;
}

void AddField(std::string& list, const std::string& text, char delimiter)
{
    const bool isPlain =
        text.find(delimiter) == std::string::npos && text.find_first_of("\"\t\r\n") == std::string::npos;
    if (isPlain) {
        list += text;
    } else {
        list += '"';
        for (const char c : text)
            list += c == '"' ? std::string("\"\"") : std::string(1, c);
        list += '"';
    }
    list += delimiter;
}

void EndRecord(std::string& list)
{
    list.back() = '\r';
    list += '\n';
}

}  // namespace

std::vector<ListColumn> ListColumns()
{
    std::vector<ListColumn> columns = {{ListColumn::kBank}, {ListColumn::kChannel}};
    for (const Column column : kColumns)
        columns.push_back(
            {column, column == kFrequency || column == kShiftFrequency ? Unit::MHz : Unit::None});
    columns.push_back({kSkipPart});
    columns.push_back({kEnabledPart});
    return columns;
}

std::string ListTitle(const ListColumn& column)
{
    switch (column.part) {
        case ListColumn::kBank:
            return "Bank";
        case ListColumn::kChannel:
            return "Channel";
        case ListColumn::kRow:
            return "Row";
        case kFrequency:
            return "Frequency (MHz)";
        case kShiftFrequency:
            return "Offset (MHz)";
        default:
            return std::string(PartName(column.part));
    }
}

int CountRows(const CloneImage& image, const ListChoice& choice)
{
    int count = 0;
    for (const RowRange& rows : choice.groups)
        for (int row = rows.first; row <= rows.Last(); ++row)
            count += image.MemData(row).HasChannel() ? 1 : 0;
    return count;
}

std::string FormatList(const CloneImage& image, const ListChoice& choice)
{
    const char delimiter = choice.decimals == DecimalSign::Comma ? ';' : ',';
    std::string list(kByteOrderMark);
    for (const ListColumn& column : choice.columns)
        AddField(list, ListTitle(column), delimiter);
    EndRecord(list);
    for (const RowRange& rows : choice.groups)
        for (int row = rows.first; row <= rows.Last(); ++row) {
            if (!image.MemData(row).HasChannel())
                continue;
            for (const ListColumn& column : choice.columns)
                AddField(list, FieldOf(image, row, column.part, choice.decimals), delimiter);
            EndRecord(list);
        }
    return list;
}

}  // namespace rqm5
