#include "image/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace rqm5 {
namespace {

constexpr double kLargest = 1e15;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The part of the text that std::from_chars may see: it would take "inf" and "nan" for numbers too.
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

/// Six decimals with at least minimumWhole digits before the point; a minus sign stands ahead of them.
std::string FormatFixed(double value, std::size_t minimumWhole)
{
    std::array<char, 64> buffer{};
    const double bounded = std::clamp(value, -kLargest, kLargest);
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(bounded),
                                   std::chars_format::fixed, 6)
                         .ptr;
    std::string text(buffer.data(), end);
    const std::size_t whole = text.find('.');
    if (whole < minimumWhole)
        text.insert(0, minimumWhole - whole, '0');
    const bool isZero = text.find_first_not_of("0.") == std::string::npos;
    return bounded < 0 && !isZero ? "-" + text : text;
}

}  // namespace

double ReadNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (text.starts_with('+') && text.size() > 1 && text[1] != '-')
        text.remove_prefix(1);
    const std::string_view part = NumericPart(text);
    double value = 0;
    const auto result =
        std::from_chars(part.data(), part.data() + part.size(), value, std::chars_format::fixed);
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

std::string FormatMegahertz(double value)
{
    return FormatFixed(value, 1);
}

std::string PackedDigits(double value, int wholeDigits)
{
    const auto whole = static_cast<std::size_t>(wholeDigits);
    const std::string text = FormatFixed(value, whole);
    return text.substr(0, whole) + text.substr(text.size() - 6);
}

}  // namespace rqm5
