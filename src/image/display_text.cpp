#include "image/display_text.h"

#include <algorithm>
#include <utility>

#include "image/memory_block.h"
#include "image/utf8.h"

namespace rqm5 {
namespace {

struct CharacterRange
{
    char32_t first;
    char32_t last;
};

/// Control characters, marks that turn the direction of writing, and others that a reader cannot see.
constexpr CharacterRange kHidden[] = {{0x00, 0x1F},     {0x7F, 0x9F},      {0xAD, 0xAD},     {0x061C, 0x061C},
                                      {0x200B, 0x200F}, {0x2028, 0x202E},  {0x2060, 0x206F}, {0xFEFF, 0xFEFF},
                                      {0xFFF9, 0xFFFB}, {0xE0000, 0xE007F}};

constexpr CharacterRange kCombining[] = {{0x0300, 0x036F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF},
                                         {0x20D0, 0x20FF}, {0x3099, 0x309A}, {0xFE00, 0xFE0F},
                                         {0xFE20, 0xFE2F}};

constexpr CharacterRange kWide[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},  {0x3041, 0xA4CF},
                                    {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},  {0xFE30, 0xFE6F},
                                    {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},  {0x1F300, 0x1F64F},
                                    {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

template <std::size_t N>
bool IsIn(const CharacterRange (&ranges)[N], char32_t character)
{
    return std::any_of(std::begin(ranges), std::end(ranges), [character](const CharacterRange& range) {
        return character >= range.first && character <= range.last;
    });
}

std::string Escaped(char32_t code)
{
    constexpr std::pair<char32_t, const char*> kNamed[] = {{'\t', "\\t"}, {'\n', "\\n"}, {'\r', "\\r"}};
    for (const auto& [character, name] : kNamed)
        if (code == character)
            return name;
    if (code < 0x80)
        return "\\x" + HexByte(static_cast<int>(code));
    constexpr char32_t kFourDigits = 0xFFFF;
    return code <= kFourDigits ? "\\u" + HexAddress(static_cast<int>(code))
                               : "\\U" + HexAddress(static_cast<int>(code >> 16)) +
                                     HexAddress(static_cast<int>(code & kFourDigits));
}

int WidthOf(char32_t code)
{
    if (code == kNoCharacter)
        return 1;
    if (IsIn(kCombining, code))
        return 0;
    return IsIn(kWide, code) ? 2 : 1;
}

/// How many characters at the front of a text show as they are and take one column each. Nearly every text
/// is made of nothing else.
std::size_t PlainLength(std::string_view text)
{
    const auto isPlain = [](char c) { return c >= 0x20 && c < 0x7F; };
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isPlain) - text.begin());
}

}  // namespace

std::string VisibleText(std::string_view text)
{
    std::size_t plain = PlainLength(text);
    if (plain == text.size())
        return std::string(text);
    std::string visible;
    for (;; plain = PlainLength(text)) {
        visible += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty())
            return visible;
        const Character next = FirstCharacter(text);
        if (next.code == kNoCharacter)
            visible += "\\x" + HexByte(static_cast<unsigned char>(text.front()));
        else if (IsIn(kHidden, next.code))
            visible += Escaped(next.code);
        else
            visible += text.substr(0, next.length);
        text.remove_prefix(next.length);
    }
}

int DisplayWidth(std::string_view text)
{
    std::size_t plain = PlainLength(text);
    int width = static_cast<int>(plain);
    for (text.remove_prefix(plain); !text.empty(); text.remove_prefix(plain)) {
        const Character next = FirstCharacter(text);
        width += WidthOf(next.code);
        text.remove_prefix(next.length);
        plain = PlainLength(text);
        width += static_cast<int>(plain);
    }
    return width;
}

std::string_view CutToWidth(std::string_view text, int columns)
{
    std::size_t length = 0;
    while (length < text.size()) {
        const Character next = FirstCharacter(text.substr(length));
        columns -= WidthOf(next.code);
        if (columns < 0)
            break;
        length += next.length;
    }
    return text.substr(0, length);
}

std::string PadToWidth(std::string_view text, int columns)
{
    const int missing = std::max(0, columns - DisplayWidth(text));
    std::string padded;
    padded.reserve(text.size() + static_cast<std::size_t>(missing));
    return padded.append(text).append(static_cast<std::size_t>(missing), ' ');
}

}  // namespace rqm5
