#include "memory/named_rows.h"

#include <algorithm>

#include "files/csv_record.h"
#include "files/csv_rows.h"
#include "files/list_words.h"
#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

/// A whole number of digits only.
std::optional<int> NumberIn(std::string_view text, int count)
{
    constexpr std::size_t kMostDigits = 6;
    if (text.empty() || text.size() > kMostDigits ||
        text.find_first_not_of("0123456789") != std::string_view::npos)
        return std::nullopt;
    const int number = std::stoi(std::string(text));
    return number < count ? std::optional(number) : std::nullopt;
}

/// "Bank 3", "B3", "3"
std::optional<int> BankNamed(std::string_view text)
{
    std::string words = FoldedWords(text);
    for (const std::string_view name : {"bank", "banque", "banco", "バンク", "b"})
        if (words.starts_with(name)) {
            words = Trimmed(std::string_view(words).substr(name.size()));
            break;
        }
    return NumberIn(words, kBanks);
}

const RowGroup* GroupCalled(const std::string& bank)
{
    const std::string words = FoldedWords(bank);
    const auto* found = std::ranges::find_if(kRowGroups, [&words](const RowGroup& group) {
        return words == FoldedWords(group.spoken) || words == FoldedWords(group.title);
    });
    return found != kRowGroups.end() ? found : nullptr;
}

NamedRow Refused(const ListedPlace& place)
{
    if (!place.row.empty())
        return {NamedRow::kNone, {MESSAGE("there is no memory row \"%1\""), {place.row}}};
    if (!place.IsGiven())
        return {NamedRow::kNone, MESSAGE("the list names no row for it")};
    return {NamedRow::kNone, {MESSAGE("there is no channel \"%1\" in \"%2\""), {place.channel, place.bank}}};
}

}  // namespace

NamedRow FindNamedRow(const CloneImage& image, const ListedPlace& place)
{
    const std::string channel = UpperCase(place.channel);
    std::optional<int> row;
    if (!place.row.empty()) {
        row = NumberIn(place.row, kRadioRows);
    } else if (const RowGroup* group = GroupCalled(place.bank)) {
        row = GroupChannel(channel, *group);
        if (row)
            *row += group->rows.first;
    } else if (UpperCase(place.bank) == kCsvBankRows) {
        row = NumberIn(channel, kBankRows);
    } else if (const auto bank = BankNamed(place.bank)) {
        const RowRange rows = GroupRows(image, *bank);
        row = NumberIn(channel, rows.count);
        if (row)
            *row += rows.first;
    }
    return row ? NamedRow{*row} : Refused(place);
}

bool NamesRows(const std::vector<ListedChannel>& channels)
{
    return std::ranges::any_of(channels,
                               [](const ListedChannel& channel) { return channel.place.IsGiven(); });
}

ListedPlace PlaceInList(const CloneImage& image, int row)
{
    if (const RowGroup* group = GroupOfRow(row))
        return {group->spoken, LabelAmongAll(*group, row - group->rows.first), {}};
    const int bank = SelectorOfRow(image, row);
    if (bank == kSelectAll)
        return {std::string(kCsvBankRows), std::to_string(row), {}};
    return {SelectorText(bank).English(), std::to_string(row - GroupRows(image, bank).first), {}};
}

std::optional<int> RowOfWord(const CloneImage& image, std::string_view word)
{
    for (const RowGroup& group : kRowGroups)
        if (word == group.option)
            return group.rows.first;
    const std::size_t colon = word.find(':');
    if (colon == std::string_view::npos)
        return NumberIn(word, kRadioRows);
    const std::string channel(word.substr(colon + 1));
    const int row =
        FindNamedRow(image, {std::string(word.substr(0, colon)), channel.empty() ? "0" : channel, {}}).row;
    return row == NamedRow::kNone ? std::nullopt : std::optional(row);
}

RowRange RowsOnFrom(const CloneImage& image, int row)
{
    int end = row + 1;
    if (const RowGroup* group = GroupOfRow(row))
        end = group->rows.Last() + 1;
    else if (row < TotalBankSize(image))
        end = TotalBankSize(image);
    else if (row < kBankRows)
        end = kBankRows;
    return {row, end - row};
}

}  // namespace rqm5
