#include "memory/row_choice.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "image/number_text.h"
#include "memory/bank_layout.h"
#include "memory/channel_search.h"

namespace rqm5 {
namespace {

constexpr char kExpected[] = MESSAGE(
    "%1: it is all, bank:3, bank:2/5-9, memory:0-199, program-scan, search-pass, priority, vfo, settings, "
    "banks, "
    "or a condition such as mode=AM, freq:118..137 or note~airport");

/// What somebody typed, not longer than a message can be read with.
std::string Quoted(std::string_view text)
{
    constexpr std::size_t kMost = 60;
    std::size_t end = std::min(text.size(), kMost);
    while (end > 0 && end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return '"' + std::string(text.substr(0, end)) + (end < text.size() ? "...\"" : "\"");
}

std::optional<int> ReadIndex(std::string_view text)
{
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    const bool isWhole = error == std::errc() && stop == end && text.front() != '-';
    return isWhole ? std::optional(number) : std::nullopt;
}

/// "5" or "5-9" with ends that `read` understands, within 0 to count - 1.
template <class Read>
std::optional<RowRange> ReadSpan(std::string_view text, int count, Read read)
{
    const std::size_t dash = text.find('-');
    const auto first = read(text.substr(0, dash));
    const auto last = dash == std::string_view::npos ? first : read(text.substr(dash + 1));
    if (!first || !last || *first > *last || *last >= count)
        return std::nullopt;
    return RowRange{*first, *last - *first + 1};
}

/// The row of a label of the group's own view or of that of all rows, counted from the group's first.
std::optional<int> IndexOfLabel(const RowGroup& group, std::string_view label)
{
    for (int i = 0; i < group.rows.count; ++i)
        if (label == GroupLabel(group, i) || label == LabelAmongAll(group, i))
            return i;
    return std::nullopt;
}

using RowsOrFault = std::variant<RowRange, Message>;

/// The rows of "program-scan" or "program-scan/0A-3B"; nothing when the term is no such group.
std::optional<RowsOrFault> ReadGroup(std::string_view term)
{
    const std::size_t slash = term.find('/');
    const auto* group = std::ranges::find(kRowGroups, term.substr(0, slash), &RowGroup::option);
    if (group == kRowGroups.end())
        return std::nullopt;
    if (slash == std::string_view::npos)
        return group->rows;
    const auto span = ReadSpan(term.substr(slash + 1), group->rows.count,
                               [group](std::string_view label) { return IndexOfLabel(*group, label); });
    if (!span)
        return Message(MESSAGE("%1: its channels are %2 to %3"),
                       {Quoted(term), GroupLabel(*group, 0), GroupLabel(*group, group->rows.count - 1)});
    return RowRange{group->rows.first + span->first, span->count};
}

/// What stands behind "name:", the whole for the name alone; nothing for another name.
std::optional<std::string_view> Behind(std::string_view term, std::string_view name, std::string_view whole)
{
    if (term == name)
        return whole;
    return term.starts_with(name) && term.size() > name.size() && term[name.size()] == ':'
               ? std::optional(term.substr(name.size() + 1))
               : std::nullopt;
}

/// The rows of a term that names them whatever the banks are; nothing when it does not.
std::optional<RowsOrFault> FixedRows(std::string_view term)
{
    const auto rows =
        term == "all" ? std::optional<std::string_view>("0-1209") : Behind(term, "memory", "0-1209");
    if (!rows)
        return ReadGroup(term);
    if (const auto span = ReadSpan(*rows, kMemoryRows, ReadIndex))
        return *span;
    return Message(MESSAGE("%1: memory rows are 0 to %2"), {Quoted(term), kMemoryRows - 1});
}

}  // namespace

std::variant<RowChoice, Message> RowChoice::Read(std::string_view text)
{
    RowChoice choice;
    for (;;) {
        const std::size_t comma = text.find(',');
        if (Message fault = choice.Add(text.substr(0, comma)); !fault.empty())
            return fault;
        if (comma == std::string_view::npos)
            break;
        text.remove_prefix(comma + 1);
    }
    const bool isBeside = choice.hasSettings_ || choice.hasBanks_ || !choice.vfoRows_.empty();
    if (choice.HasConditions() && isBeside)
        return MESSAGE("a condition chooses memory rows; vfo, settings and banks cannot stand beside it");
    return choice;
}

Message RowChoice::Add(std::string_view term)
{
    if (term == "settings" || term == "banks") {
        (term == "settings" ? hasSettings_ : hasBanks_) = true;
        return {};
    }
    if (const auto banks = Behind(term, "bank", {}))
        return AddBanks(*banks);
    if (const auto rows = Behind(term, "vfo", "0-13"))
        return AddVfoRows(*rows);
    if (const auto rows = FixedRows(term)) {
        if (const auto* fault = std::get_if<Message>(&*rows))
            return *fault;
        places_.push_back({-1, std::get<RowRange>(*rows)});
        return {};
    }
    const std::size_t at = term.find_first_of("=:~");
    if (at != std::string_view::npos && PartOfWord(term.substr(0, at)))
        return AddCondition(term, at);
    return {kExpected, {Quoted(term)}};
}

Message RowChoice::AddVfoRows(std::string_view rows)
{
    const auto span = ReadSpan(rows, kVfoRows, ReadIndex);
    for (int row = 0; span && row < span->count; ++row)
        vfoRows_.push_back(span->first + row);
    return span ? Message()
                : Message(MESSAGE("%1: VFO rows are 0 to %2"),
                          {Quoted("vfo:" + std::string(rows)), kVfoRows - 1});
}

Message RowChoice::AddBanks(std::string_view numbers)
{
    const std::size_t slash = numbers.find('/');
    const auto banks = ReadSpan(numbers.substr(0, slash), kBanks, ReadIndex);
    if (!banks || (slash != std::string_view::npos && banks->count != 1))
        return {MESSAGE("%1: banks are 0 to 49, as in bank:3, bank:0-4 or bank:2/5-9"),
                {Quoted("bank:" + std::string(numbers))}};
    if (slash == std::string_view::npos) {
        for (int bank = banks->first; bank <= banks->Last(); ++bank)
            places_.push_back({bank, {}, true});
        return {};
    }
    const auto channels = ReadSpan(numbers.substr(slash + 1), kBankRows, ReadIndex);
    if (!channels)
        return {MESSAGE("%1: channels of a bank count from 0, as in bank:2/5-9"),
                {Quoted("bank:" + std::string(numbers))}};
    places_.push_back({banks->first, *channels});
    return {};
}

Message RowChoice::AddCondition(std::string_view term, std::size_t at)
{
    Condition condition{.part = *PartOfWord(term.substr(0, at))};
    std::string_view value = term.substr(at + 1);
    const bool isNumber = condition.part == kFrequency || condition.part == kShiftFrequency;
    if (term[at] == '~') {
        if (condition.part != kNote || value.empty())
            return {MESSAGE("%1: \"~\" looks for a text in the note, as in note~airport"), {Quoted(term)}};
        condition.kind = Condition::Kind::Contains;
        condition.low.text = value;
        conditions_.push_back(condition);
        return {};
    }
    const std::size_t dots = value.find("..");
    if (term[at] == ':' && !isNumber)
        return {MESSAGE("%1: write it with \"=\", as in mode=AM"), {Quoted(term)}};
    std::string_view high = value;
    if (dots != std::string_view::npos && isNumber) {
        condition.kind = Condition::Kind::Between;
        high = value.substr(dots + 2);
        value = value.substr(0, dots);
    }
    const auto low = ReadFieldValue(condition.part, value);
    const auto top = ReadFieldValue(condition.part, high);
    for (const auto* end : {&low, &top})
        if (const auto* fault = std::get_if<Message>(end))
            return *fault;
    condition.low = std::get<FieldValue>(low);
    condition.high = std::get<FieldValue>(top);
    if (condition.low.hertz > condition.high.hertz)
        return {MESSAGE("%1: the lower end comes first"), {Quoted(term)}};
    conditions_.push_back(condition);
    return {};
}

Message RowChoice::Fault(const CloneImage& image) const
{
    for (const Place& place : places_) {
        if (place.bank < 0)
            continue;
        const int size = GroupRows(image, place.bank).count;
        if (!place.isWholeBank && place.rows.Last() >= size)
            return {size == 1 ? MESSAGE("bank %1 has %2 channel") : MESSAGE("bank %1 has %2 channels"),
                    {place.bank, size}};
    }
    return {};
}

std::vector<RowRange> RowChoice::Ranges(const CloneImage& image) const
{
    std::vector<RowRange> ranges;
    for (const Place& place : places_) {
        const RowRange bank = place.bank < 0 ? RowRange{} : GroupRows(image, place.bank);
        ranges.push_back(place.isWholeBank ? bank
                                           : RowRange{bank.first + place.rows.first, place.rows.count});
    }
    return ranges;
}

bool RowChoice::Meets(const Channel& channel, const Condition& condition)
{
    switch (condition.kind) {
        case Condition::Kind::Contains:
            return HoldsText(channel.note, condition.low.text);
        case Condition::Kind::Between: {
            const std::int64_t hertz =
                condition.part == kFrequency ? channel.frequency : channel.shiftFrequency;
            return channel.HasChannel() && hertz >= condition.low.hertz && hertz <= condition.high.hertz;
        }
        case Condition::Kind::Equal:
            break;
    }
    return HasValue(channel, condition.low);
}

bool RowChoice::IsChosen(const Channel& channel) const
{
    return std::ranges::all_of(conditions_, [&](const Condition& needed) {
        return std::ranges::any_of(conditions_, [&](const Condition& one) {
            return one.part == needed.part && Meets(channel, one);
        });
    });
}

RowList RowChoice::MemoryRows(const CloneImage& image) const
{
    std::vector<bool> isNamed(kMemoryRows, false);
    std::vector<RowRange> ranges = Ranges(image);
    if (ranges.empty() && HasConditions())
        ranges.push_back({0, kRadioRows});
    for (const RowRange& range : ranges)
        for (int row = range.first; row <= range.Last(); ++row)
            isNamed[static_cast<std::size_t>(row)] = IsChosen(image.MemData(row));
    RowList rows;
    for (int row = 0; row < kMemoryRows; ++row)
        if (isNamed[static_cast<std::size_t>(row)])
            rows.push_back(row);
    return rows;
}

std::vector<int> RowChoice::Banks() const
{
    std::vector<int> banks;
    for (const Place& place : places_)
        if (place.bank >= 0)
            banks.push_back(place.bank);
    return banks;
}

std::string PlaceText(const CloneImage& image, int row)
{
    if (const RowGroup* group = GroupOfRow(row))
        return std::string(group->option) + "/" + GroupLabel(*group, row - group->rows.first);
    const int bank = row < kRadioRows ? SelectorOfRow(image, row) : kSelectAll;
    if (bank == kSelectAll)
        return "memory:" + std::to_string(row);
    return "bank:" + std::to_string(bank) + "/" + std::to_string(row - GroupRows(image, bank).first);
}

}  // namespace rqm5
