#include "files/list_titles.h"

#include <algorithm>
#include <iterator>

#include "memory/channel_parts.h"

namespace rqm5 {
namespace {

struct Title
{
    std::string_view words;
    int part;
};

constexpr int kIgnored = ListColumn::kIgnored;

// Without their unit. What names a row or a receiver is known as a title and not taken over.
constexpr Title kTitles[] = {
    {"frequency", kFrequency},
    {"freq", kFrequency},
    {"frq", kFrequency},
    {"qrg", kFrequency},
    {"rx", kFrequency},
    {"rx frequency", kFrequency},
    {"rx freq", kFrequency},
    {"receive frequency", kFrequency},
    {"receive freq", kFrequency},
    {"channel frequency", kFrequency},
    {"output", kFrequency},
    {"output frequency", kFrequency},
    {"mode", kMode},
    {"modulation", kMode},
    {"modulation mode", kMode},
    {"mod", kMode},
    {"step", kStep},
    {"tuning step", kStep},
    {"option", kOption},
    {"squelch", kOption},
    {"squelch type", kOption},
    {"tone mode", kOption},
    {"secret", kSecret},
    {"secret code", kSecret},
    {"scrt", kSecret},
    {"carrier", kCarrier},
    {"train", kCarrier},
    {"train tone", kCarrier},
    {"tone", kTone},
    {"ctcss", kTone},
    {"ctcss tone", kTone},
    {"ctcss frequency", kTone},
    {"ctcss freq", kTone},
    {"tone frequency", kTone},
    {"tone freq", kTone},
    {"rx tone", kTone},
    {"pl", kTone},
    {"pl tone", kTone},
    {"shift", kShift},
    {"duplex", kShift},
    {"shift direction", kShift},
    {"offset direction", kShift},
    {"shiftfreq", kShiftFrequency},
    {"shift frequency", kShiftFrequency},
    {"shift freq", kShiftFrequency},
    {"offset", kShiftFrequency},
    {"offset frequency", kShiftFrequency},
    {"offset freq", kShiftFrequency},
    {"note", kNote},
    {"notes", kNote},
    {"name", kNote},
    {"channel name", kNote},
    {"alpha tag", kNote},
    {"tag", kNote},
    {"label", kNote},
    {"description", kNote},
    {"comment", kNote},
    {"comments", kNote},
    {"remark", kNote},
    {"remarks", kNote},
    {"memo", kNote},
    {"station", kNote},
    {"service", kNote},
    {"callsign", kNote},
    {"call sign", kNote},
    {"user", kNote},
    {"title", kNote},
    {"text", kNote},
    {"skip", kSkipPart},
    {"lockout", kSkipPart},
    {"l o", kSkipPart},
    {"enable", kEnabledPart},
    {"enabled", kEnabledPart},
    {"active", kEnabledPart},
    {"model", kIgnored},
    {"bank", ListColumn::kBank},
    {"channel", kIgnored},
    {"ch", kIgnored},
    {"no", kIgnored},
    {"nr", kIgnored},
    {"number", kIgnored},
    {"location", kIgnored},
    {"memory", kIgnored},
    {"row", kIgnored},
    {"date", kIgnored},
    {"time", kIgnored},
    {"country", kIgnored},
    {"city", kIgnored},
    {"id", kIgnored},
};

/// Takes the unit off the end of some words.
Unit TakeUnit(std::string& words)
{
    const std::size_t blank = words.rfind(' ');
    const std::size_t begin = blank == std::string::npos ? 0 : blank + 1;
    const std::string_view last = std::string_view(words).substr(begin);
    const Unit unit = last.ends_with("hz") ? UnitNamed(last) : Unit::None;
    if (unit != Unit::None)
        words.resize(begin == 0 ? 0 : begin - 1);
    return unit;
}

}  // namespace

std::optional<ListColumn> ReadTitle(std::string_view title)
{
    std::string words = PlainWords(title);
    const Unit unit = TakeUnit(words);
    if (words.empty())
        return unit == Unit::None ? std::nullopt : std::optional(ListColumn{kFrequency, unit});
    const auto* found = std::ranges::find(kTitles, words, &Title::words);
    return found != std::end(kTitles) ? std::optional(ListColumn{found->part, unit}) : std::nullopt;
}

bool AreTitles(const std::vector<std::string>& fields)
{
    std::size_t texts = 0;
    std::size_t titles = 0;
    for (const std::string& field : fields) {
        const auto title = ReadTitle(field);
        texts += field.empty() ? 0 : 1;
        titles += title ? 1 : 0;
        if (!title && ReadFrequency(field))
            return false;
    }
    return titles > 0 && 2 * titles >= texts;
}

std::vector<ListColumn> ColumnsUnder(const std::vector<std::string>& titles)
{
    std::vector<ListColumn> columns;
    Parts taken;
    for (const std::string& title : titles) {
        ListColumn column = ReadTitle(title).value_or(ListColumn{});
        if (column.part >= 0 && taken.Has(column.part))
            column.part = kIgnored;
        if (column.part >= 0)
            taken.Add(column.part);
        columns.push_back(column);
    }
    return columns;
}

}  // namespace rqm5
