#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace rqm5 {

/// The number a text begins with, whatever the locale: blanks, a sign, digits, a point, digits.
/// Letters, exponents and everything after the number are not looked at; a text without a number is 0.
/// Numbers beyond +-1e15 are cut to that, so that they can always be printed.
double ReadNumber(std::string_view text);

/// The whole part of ReadNumber, cut to the range of int.
int ReadInteger(std::string_view text);

inline constexpr std::int64_t kHertzPerMegahertz = 1'000'000;

/// Whole hertz of a number of MHz, rounded as its six decimals are printed and cut to +-1e9 MHz.
std::int64_t Hertz(double megahertz);

/// The same of the number that a text begins with.
std::int64_t ReadHertz(std::string_view text);

/// Hertz as a number of MHz: the nearest to the six decimals.
double Megahertz(std::int64_t hertz);

/// The pattern "###0.000000" (and "#0.000000", which prints the same): MHz with six decimals, one digit
/// before the point at least.
std::string FormatMegahertz(std::int64_t hertz);

/// The digits of the pattern "0000.000000" (or "00.000000" with wholeDigits 2): the first wholeDigits
/// and the last 6 characters of the printed number, without the point.
std::string PackedDigits(std::int64_t hertz, int wholeDigits);

}  // namespace rqm5
