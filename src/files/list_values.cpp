#include "files/list_values.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "files/list_numbers.h"
#include "files/list_words.h"
#include "files/truth_words.h"
#include "image/number_text.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

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
    const auto number = ReadSmallNumber(text);
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
    const auto number = ReadSmallNumber(text);
    const bool isCode = number && !number->hasFraction && !number->isNegative && number->whole < kSecretCodes;
    return isCode ? std::optional(static_cast<int>(number->whole)) : std::nullopt;
}

std::optional<int> ReadCarrier(std::string_view text)
{
    if (PlainWords(text) == "jr")
        return kCarrierJr;
    const auto number = ReadSmallNumber(text);
    for (int code = 0; number && code < kCarrierJr; ++code)
        if (number->Hertz(Unit::Hz) == (code + 3) * 100)
            return code;
    return std::nullopt;
}

std::optional<int> ReadTone(std::string_view text)
{
    constexpr double kNear = 0.01;
    const auto number = ReadSmallNumber(text);
    if (!number || (number->unit != Unit::None && number->unit != Unit::Hz))
        return std::nullopt;
    for (int tone = 0; tone < static_cast<int>(ToneName.size()); ++tone)
        if (std::abs(ReadNumber(TextAt(ToneName, tone)) - number->Value()) < kNear)
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
