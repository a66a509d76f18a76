#include "files/csv_rows.h"

#include <algorithm>
#include <cmath>

#include "files/csv_record.h"
#include "image/number_text.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

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

const RowGroup* GroupNamed(std::string_view bank)
{
    const auto* found = std::ranges::find(kRowGroups, bank, &RowGroup::csvName);
    return found != kRowGroups.end() ? found : nullptr;
}

}  // namespace

std::optional<int> ChannelNumber(const std::string& channel, int count)
{
    const bool isNumber = !channel.empty() && channel.front() >= '0' && channel.front() <= '9';
    const double number = ReadNumber(channel);
    if (!isNumber || number != std::trunc(number) || number >= count)
        return std::nullopt;
    return static_cast<int>(number);
}

std::optional<int> GroupChannel(const std::string& channel, const RowGroup& group)
{
    return group.isPairs ? ScanEdge(channel)
                         : LabelledChannel(channel, UpperCase(group.rowPrefix), group.rows.count);
}

std::optional<RowId> FindCsvRow(const std::string& bank, const std::string& channel)
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

bool IsCsvBank(const std::string& bank)
{
    return bank == kCsvVfo || bank == kCsvBankRows || GroupNamed(bank) != nullptr;
}

}  // namespace rqm5
