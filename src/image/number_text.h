#pragma once

#include <string>
#include <string_view>

namespace rqm5 {

/// The number a text begins with, whatever the locale: blanks, a sign, digits, a point, digits.
/// Letters, exponents and everything after the number are not looked at; a text without a number is 0.
/// Numbers beyond +-1e15 are cut to that, so that they can always be printed.
double ReadNumber(std::string_view text);

/// The whole part of ReadNumber, cut to the range of int.
int ReadInteger(std::string_view text);

/// The pattern "###0.000000" (and "#0.000000", which prints the same): six decimals, one digit before
/// the point at least.
std::string FormatMegahertz(double value);

/// The digits of the pattern "0000.000000" (or "00.000000" with wholeDigits 2): the first wholeDigits
/// and the last 6 characters of the printed number, without the point.
std::string PackedDigits(double value, int wholeDigits);

}  // namespace rqm5
