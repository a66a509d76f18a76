#include "image/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "image/double_from_chars.h"

namespace rqm5 {
namespace {

constexpr double kLargest = 1e15;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The part of the text that DoubleFromChars may see: it would take "inf" and "nan" for numbers too.
std::string_view NumericPart(std::string_view text)
{
    std::size_t end = 0;
    if (end < text.size() && text[end] == '-')
        ++end;
    while (end < text.size() && IsDigit(text[end]))
        ++end;
    if (end < text.size() && text[end] == '.')
        ++end;
    while (end < text.size() && IsDigit(text[end]))
        ++end;
    return text.substr(0, end);
}

constexpr std::size_t kDecimals = 6;

/// The digits of a number of hertz, filled up with zeros to at least so many before the six decimals.
std::string Digits(std::int64_t hertz, std::size_t wholeDigits)
{
    std::string digits = std::to_string(std::abs(hertz));
    if (digits.size() < wholeDigits + kDecimals)
        digits.insert(0, wholeDigits + kDecimals - digits.size(), '0');
    return digits;
}

}  // namespace

double ReadNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (text.starts_with('+') && text.size() > 1 && text[1] != '-')
        text.remove_prefix(1);
    const std::string_view part = NumericPart(text);
    double value = 0;
    const auto result = DoubleFromChars(part.data(), part.data() + part.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        const bool isHuge = std::min(part.find('.'), part.size()) > 300;
        value = !isHuge ? 0 : part.starts_with('-') ? -kLargest : kLargest;
    }
    return std::clamp(value, -kLargest, kLargest);
}

int ReadInteger(std::string_view text)
{
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::trunc(ReadNumber(text)), kLowest, kHighest));
}

std::int64_t Hertz(double megahertz)
{
    constexpr double kMost = 1e9;
    std::array<char, 32> buffer{};
    auto* const begin = buffer.data();
    // Printed and read again: a product with a million would round some halves otherwise than a print does.
    const auto printed = std::to_chars(begin, begin + buffer.size(), std::clamp(megahertz, -kMost, kMost),
                                       std::chars_format::fixed, static_cast<int>(kDecimals));
    auto* const point = std::find(begin, printed.ptr, '.');
    auto* const end = std::copy(point + 1, printed.ptr, point);
    std::int64_t hertz = 0;
    std::from_chars(begin, end, hertz);
    return hertz;
}

std::int64_t ReadHertz(std::string_view text)
{
    return Hertz(ReadNumber(text));
}

double Megahertz(std::int64_t hertz)
{
    return static_cast<double>(hertz) / static_cast<double>(kHertzPerMegahertz);
}

std::string FormatMegahertz(std::int64_t hertz)
{
    std::string text = Digits(hertz, 1);
    text.insert(text.size() - kDecimals, 1, '.');
    return hertz < 0 ? "-" + text : text;
}

std::string PackedDigits(std::int64_t hertz, int wholeDigits)
{
    const auto whole = static_cast<std::size_t>(wholeDigits);
    const std::string digits = Digits(hertz, whole);
    return digits.substr(0, whole) + digits.substr(digits.size() - kDecimals);
}

}  // namespace rqm5
