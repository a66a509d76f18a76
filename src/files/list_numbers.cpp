#include "files/list_numbers.h"

#include <algorithm>
#include <utility>

#include "files/list_words.h"

namespace rqm5 {
namespace {

constexpr std::int64_t kBillion = 1'000'000'000;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Takes a word off the end of a text, and the blanks before it.
std::string TakeLastWord(std::string& text)
{
    std::size_t begin = text.size();
    while (begin > 0 && IsLetter(text[begin - 1]))
        --begin;
    std::string word = text.substr(begin);
    text = Trimmed(std::string_view(text).substr(0, begin));
    return word;
}

/// The digits of a whole number; nothing when its separators do not stand where thousands end.
std::optional<std::string> WithoutThousands(std::string_view text)
{
    std::string digits;
    std::size_t group = 0;
    bool isGrouped = false;
    for (const char c : text) {
        if (IsDigit(c)) {
            digits += c;
            ++group;
            continue;
        }
        if (isGrouped ? group != 3 : group < 1 || group > 3)
            return std::nullopt;
        isGrouped = true;
        group = 0;
    }
    return isGrouped && group != 3 ? std::nullopt : std::optional(digits);
}

enum class Lone { Decimal, Thousands, Either };

/// What a separator means that stands alone.
Lone MeaningOf(std::string_view text, std::size_t at, Unit unit)
{
    const bool couldBeThousands = text.size() - at - 1 == 3 && at >= 1 && at <= 3 && text[0] != '0';
    if (!couldBeThousands || unit == Unit::None || unit == Unit::MHz || unit == Unit::GHz)
        return Lone::Decimal;
    return unit == Unit::Hz ? Lone::Thousands : Lone::Either;
}

/// Where the decimals begin (the place of their separator), npos for a whole number; nothing when that is
/// not certain.
std::optional<std::size_t> PointOf(std::string_view text, Unit unit)
{
    const std::size_t last = text.find_last_of(".,");
    if (last == std::string_view::npos)
        return last;
    if (text.find_first_of(".,") == last) {
        const Lone meaning = MeaningOf(text, last, unit);
        return meaning == Lone::Either      ? std::nullopt
               : meaning == Lone::Thousands ? std::optional(std::string_view::npos)
                                            : std::optional(last);
    }
    // The same one again and again separates thousands; one of the other kind at the end begins the decimals.
    const bool isOnly = text.find(text[last] == '.' ? ',' : '.') == std::string_view::npos;
    return isOnly ? std::string_view::npos : last;
}

/// The same where it is known what begins the decimals.
std::optional<std::size_t> PointOf(std::string_view text, char point)
{
    const std::size_t first = text.find(point);
    const bool isCertain =
        first == text.rfind(point) &&
        (first == std::string_view::npos || text.find_first_of(".,", first + 1) == std::string_view::npos);
    return isCertain ? std::optional(first) : std::nullopt;
}

std::int64_t NumberOf(std::string_view digits)
{
    std::int64_t number = 0;
    for (const char digit : digits)
        number = number * 10 + (digit - '0');
    return number;
}

/// \param isSmall  a lone separator always begins the decimals
std::optional<WrittenNumber> ReadWritten(std::string_view written, bool isSmall,
                                         DecimalSign decimals = DecimalSign::Unknown)
{
    std::string text = WithPlainSigns(written);
    const std::string word = TakeLastWord(text);
    WrittenNumber number;
    number.unit = UnitNamed(word);
    if (text.empty() || (!word.empty() && number.unit == Unit::None))
        return std::nullopt;
    number.isNegative = text.front() == '-';
    if (text.front() == '-' || text.front() == '+')
        text = Trimmed(std::string_view(text).substr(1));
    if (text.empty() ||
        !std::ranges::all_of(text, [](char c) { return IsDigit(c) || c == '.' || c == ',' || c == ' '; }))
        return std::nullopt;
    const auto point = decimals == DecimalSign::Unknown
                           ? PointOf(text, isSmall ? Unit::None : number.unit)
                           : PointOf(text, decimals == DecimalSign::Point ? '.' : ',');
    if (!point)
        return std::nullopt;
    number.hasFraction = *point != std::string::npos;
    const auto whole = WithoutThousands(std::string_view(text).substr(0, *point));
    std::string fraction = number.hasFraction ? text.substr(*point + 1) : std::string();
    constexpr std::size_t kMostDigits = 12;
    if (!whole || whole->size() > kMostDigits || whole->size() + fraction.size() == 0 ||
        !std::ranges::all_of(fraction, IsDigit))
        return std::nullopt;
    fraction.resize(9, '0');
    number.whole = NumberOf(*whole);
    number.billionths = NumberOf(fraction);
    return number;
}

}  // namespace

std::string WithPlainSigns(std::string_view text)
{
    constexpr std::pair<std::string_view, char> kSigns[] = {
        {"\u00A0", ' '}, {"\u202F", ' '}, {"\u2009", ' '}, {"\u2019", ' '}, {"'", ' '}, {"\u2212", '-'}};
    std::string plain;
    while (!text.empty()) {
        const auto* sign =
            std::ranges::find_if(kSigns, [text](const auto& row) { return text.starts_with(row.first); });
        const bool isSign = sign != std::end(kSigns);
        plain += isSign ? sign->second : text.front();
        text.remove_prefix(isSign ? sign->first.size() : 1);
    }
    return Trimmed(plain);
}

Unit UnitNamed(std::string_view word)
{
    constexpr std::pair<std::string_view, Unit> kUnits[] = {
        {"hz", Unit::Hz},  {"khz", Unit::KHz}, {"k", Unit::KHz},  {"mhz", Unit::MHz},
        {"mc", Unit::MHz}, {"m", Unit::MHz},   {"ghz", Unit::GHz}};
    const std::string plain = PlainWords(word);
    const auto* found = std::ranges::find(kUnits, plain, &std::pair<std::string_view, Unit>::first);
    return found != std::end(kUnits) ? found->second : Unit::None;
}

std::int64_t WrittenNumber::Hertz(Unit usual) const
{
    constexpr std::int64_t kMost = 9'000'000'000'000'000;
    const auto factor = static_cast<std::int64_t>(unit == Unit::None ? usual : unit);
    if (whole > kMost / std::max<std::int64_t>(factor, 1))
        return kMost;
    const std::int64_t hertz = whole * factor + (billionths * factor + kBillion / 2) / kBillion;
    return isNegative ? -hertz : hertz;
}

double WrittenNumber::Value() const
{
    const double value =
        static_cast<double>(whole) + static_cast<double>(billionths) / static_cast<double>(kBillion);
    return isNegative ? -value : value;
}

std::optional<WrittenNumber> ReadFrequency(std::string_view text, DecimalSign decimals)
{
    return ReadWritten(text, false, decimals);
}

std::optional<WrittenNumber> ReadSmallNumber(std::string_view text)
{
    return ReadWritten(text, true);
}

DecimalSign DecimalsOf(std::string_view text)
{
    const auto number = ReadWritten(text, false);
    if (!number || !number->hasFraction)
        return DecimalSign::Unknown;
    return text[text.find_last_of(".,")] == '.' ? DecimalSign::Point : DecimalSign::Comma;
}

}  // namespace rqm5
