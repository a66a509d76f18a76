#include "files/formula_guard.h"

#include <algorithm>

namespace rqm5 {
namespace {

constexpr char kGuard = '\'';

/// One that begins with apostrophes of its own takes another one, or it would lose the first of them.
bool NeedsGuard(std::string_view text)
{
    return LooksLikeFormula(text.substr(std::min(text.find_first_not_of(kGuard), text.size())));
}

}  // namespace

bool LooksLikeFormula(std::string_view text)
{
    // The wide forms too: some spreadsheets take them for the plain ones.
    constexpr std::string_view kStarts[] = {"=", "+", "-", "@", "\t", "\r", "＝", "＋", "－", "＠"};
    return std::ranges::any_of(kStarts, [text](std::string_view start) { return text.starts_with(start); });
}

std::string WithGuard(std::string_view text)
{
    return (NeedsGuard(text) ? std::string(1, kGuard) : std::string()).append(text);
}

std::string WithoutGuard(std::string_view text)
{
    const bool isGuarded = text.starts_with(kGuard) && NeedsGuard(text);
    return std::string(text.substr(isGuarded ? 1 : 0));
}

}  // namespace rqm5
