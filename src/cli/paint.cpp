#include "cli/paint.h"

#include <array>

namespace rqm5 {

std::string Painted(std::string_view text, Paint paint, bool isPainted)
{
    constexpr std::array<std::string_view, 6> kCodes = {"",         "\x1b[1m",  "\x1b[2m",
                                                        "\x1b[31m", "\x1b[32m", "\x1b[33m"};
    std::string painted;
    if (isPainted && paint != Paint::None)
        return painted.append(kCodes.at(static_cast<std::size_t>(paint))).append(text).append("\x1b[0m");
    return painted.append(text);
}

}  // namespace rqm5
