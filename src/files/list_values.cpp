#include "files/list_values.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

#include "files/truth_words.h"
#include "image/number_text.h"
#include "image/utf8.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

constexpr std::int64_t kBillion = 1'000'000'000;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsLetter(char c)
{
    return Lower(c) >= 'a' && Lower(c) <= 'z';
}

/// What people separate thousands with besides point and comma, as a plain blank; a long minus as a short
/// one.
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

double Value(const WrittenNumber& number)
{
    const double value = static_cast<double>(number.whole) +
                         static_cast<double>(number.billionths) / static_cast<double>(kBillion);
    return number.isNegative ? -value : value;
}

/// A word and the code that it stands for.
struct Word
{
    std::string_view text;
    int code;
};

std::optional<int> CodeOf(std::string_view text, std::initializer_list<Word> words)
{
    const std::string plain = FoldedWords(text);
    const auto* found = std::ranges::find(words, plain, &Word::text);
    return found != words.end() ? std::optional(found->code) : std::nullopt;
}

}  // namespace

std::string Trimmed(std::string_view text)
{
    constexpr std::string_view kBlank = "\u00A0";
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    for (;;) {
        if (!text.empty() && isBlank(text.front()))
            text.remove_prefix(1);
        else if (!text.empty() && isBlank(text.back()))
            text.remove_suffix(1);
        else if (text.starts_with(kBlank))
            text.remove_prefix(kBlank.size());
        else if (text.ends_with(kBlank))
            text.remove_suffix(kBlank.size());
        else
            return std::string(text);
    }
}

std::string PlainWords(std::string_view text)
{
    std::string plain;
    bool isGap = false;
    for (const char c : text) {
        const bool isPart = IsLetter(c) || IsDigit(c) || static_cast<unsigned char>(c) >= 0x80;
        if (isPart && isGap && !plain.empty())
            plain += ' ';
        isGap = !isPart;
        if (isPart)
            plain += Lower(c);
    }
    return plain;
}

std::string FoldedWords(std::string_view text)
{
    // From U+00C0 on; a capital letter stands 32 places before its small one.
    constexpr std::string_view kBases = "aaaaaaaceeeeiiiidnooooo ouuuuy  ";
    std::string folded;
    while (!text.empty()) {
        const Character next = FirstCharacter(text);
        const char32_t code = next.code;
        if (code >= 0xC0 && code < 0x100 && code != 0xD7 && code != 0xF7 && code != 0xDE && code != 0xFE)
            folded += code == 0xDF ? "ss" : code == 0xFF ? "y" : kBases.substr((code - 0xC0) % 32, 1);
        else if (code > 0xFF00 && code < 0xFF5F)
            folded += static_cast<char>(code - 0xFF00 + 0x20);
        else
            folded += text.substr(0, next.length);
        text.remove_prefix(next.length);
    }
    return PlainWords(folded);
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

std::optional<WrittenNumber> ReadFrequency(std::string_view text, DecimalSign decimals)
{
    return ReadWritten(text, false, decimals);
}

DecimalSign DecimalsOf(std::string_view text)
{
    const auto number = ReadWritten(text, false);
    if (!number || !number->hasFraction)
        return DecimalSign::Unknown;
    return text[text.find_last_of(".,")] == '.' ? DecimalSign::Point : DecimalSign::Comma;
}

std::optional<int> ReadMode(std::string_view text)
{
    return CodeOf(text, {{"fm", 0},
                         {"nfm", 0},
                         {"fmn", 0},
                         {"fm n", 0},
                         {"n fm", 0},
                         {"nbfm", 0},
                         {"am", 1},
                         {"wfm", 2},
                         {"fmw", 2},
                         {"fm w", 2},
                         {"w fm", 2},
                         {"wbfm", 2}});
}

std::optional<int> ReadStep(std::string_view text)
{
    constexpr int kStepsToChoose = 14;
    constexpr double kNear = 0.005;  // 8.333 is written for 8.33
    const auto number = ReadWritten(text, true);
    if (!number)
        return std::nullopt;
    const double kilohertz = static_cast<double>(number->Hertz(Unit::KHz)) / 1000;
    for (int step = 0; step < static_cast<int>(StepName.size()); ++step)
        if ((step < kStepsToChoose || TextAt(StepName, step) == "1KHz") &&
            std::abs(ReadNumber(TextAt(StepName, step)) - kilohertz) < kNear)
            return step;
    // The receiver's own steps of whole megahertz, as this program writes them.
    const int written = IndexOf(StepName, text);
    return written >= 0 ? std::optional(written) : std::nullopt;
}

std::optional<int> ReadOption(std::string_view text)
{
    return CodeOf(text, {{"off", 0},
                         {"none", 0},
                         {"no", 0},
                         {"scrt", 1},
                         {"secret", 1},
                         {"carrier", 2},
                         {"train", 2},
                         {"tone", 3},
                         {"ctcss", 3},
                         {"tsql", 3},
                         {"tone sql", 3},
                         {"pl", 3},
                         {"rev", 4},
                         {"reverse", 4}});
}

std::optional<int> ReadSecret(std::string_view text)
{
    const auto number = ReadWritten(text, true);
    const bool isCode = number && !number->hasFraction && !number->isNegative && number->whole < kSecretCodes;
    return isCode ? std::optional(static_cast<int>(number->whole)) : std::nullopt;
}

std::optional<int> ReadCarrier(std::string_view text)
{
    if (PlainWords(text) == "jr")
        return kCarrierJr;
    const auto number = ReadWritten(text, true);
    for (int code = 0; number && code < kCarrierJr; ++code)
        if (number->Hertz(Unit::Hz) == (code + 3) * 100)
            return code;
    return std::nullopt;
}

std::optional<int> ReadTone(std::string_view text)
{
    constexpr double kNear = 0.01;
    const auto number = ReadWritten(text, true);
    if (!number || (number->unit != Unit::None && number->unit != Unit::Hz))
        return std::nullopt;
    for (int tone = 0; tone < static_cast<int>(ToneName.size()); ++tone)
        if (std::abs(ReadNumber(TextAt(ToneName, tone)) - Value(*number)) < kNear)
            return tone;
    return std::nullopt;
}

std::optional<int> ReadShift(std::string_view text)
{
    const std::string plain = WithPlainSigns(text);
    if (plain.find('+') != std::string::npos)
        return 1;
    if (plain.find('-') != std::string::npos)
        return 2;
    return CodeOf(
        text,
        {{"off", 0}, {"none", 0}, {"no", 0}, {"simplex", 0}, {"s", 0}, {"0", 0}, {"plus", 1}, {"minus", 2}});
}

std::optional<int> ReadMark(std::string_view text)
{
    if (Trimmed(text) == "*")
        return 1;
    if (const auto truth = TruthOf(text))
        return *truth ? 1 : 0;
    return CodeOf(text, {{"y", 1}, {"x", 1}, {"on", 1}, {"skip", 1}, {"s", 1}, {"n", 0}, {"off", 0}});
}

}  // namespace rqm5
