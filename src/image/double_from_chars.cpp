#include "image/double_from_chars.h"

#ifndef __cpp_lib_to_chars
#include <locale.h>
#include <stdlib.h>
#ifdef __APPLE__
#include <xlocale.h>
#endif

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <string>
#endif

namespace rqm5 {

#ifdef __cpp_lib_to_chars
std::from_chars_result DoubleFromChars(const char* first, const char* last, double& value)
{
    return std::from_chars(first, last, value);
}
#else
std::from_chars_result DoubleFromChars(const char* first, const char* last, double& value)
{
    // Whatever the program's locale is, a decimal point is a point here.
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    // White space or a plus sign in front, words and hexadecimal digits would be taken too.
    const std::string text(first, std::find_if(first, last, [](char c) { return c == 'x' || c == 'X'; }));
    const std::size_t digits = text.starts_with('-') ? 1 : 0;
    char* end = nullptr;
    errno = 0;
    double read = 0;
    if (text.find_first_of("0123456789.", digits) == digits)
        read = strtod_l(text.c_str(), &end, plain);
    if (end == nullptr || end == text.c_str())
        return {first, std::errc::invalid_argument};
    const char* const stop = first + (end - text.c_str());
    if (errno == ERANGE && (read == 0 || std::isinf(read)))
        return {stop, std::errc::result_out_of_range};
    value = read;
    return {stop, std::errc()};
}
#endif

}  // namespace rqm5
