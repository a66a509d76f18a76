#include "image/utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace rqm5 {
namespace {

unsigned Unsigned(char c)
{
    return static_cast<unsigned char>(c);
}

/// The lead bytes of UTF-8 with the range of the byte that must follow; the narrower ranges keep out
/// overlong forms, surrogates and everything above U+10FFFF.
struct Sequence
{
    unsigned firstLead, lastLead;
    std::size_t length;
    unsigned lowestSecond, highestSecond;
};

constexpr Sequence kSequences[] = {
    {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF}, {0xE1, 0xEC, 3, 0x80, 0xBF},
    {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF}, {0xF0, 0xF0, 4, 0x90, 0xBF},
    {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

/// The length of the well-formed sequence a text begins with, 0 when there is none.
std::size_t SequenceLength(std::string_view text)
{
    const unsigned lead = Unsigned(text[0]);
    if (lead < 0x80)
        return 1;
    for (const Sequence& sequence : kSequences) {
        if (lead < sequence.firstLead || lead > sequence.lastLead)
            continue;
        if (text.size() < sequence.length || Unsigned(text[1]) < sequence.lowestSecond ||
            Unsigned(text[1]) > sequence.highestSecond)
            return 0;
        const std::string_view rest = text.substr(2, sequence.length - 2);
        const bool follows =
            std::all_of(rest.begin(), rest.end(), [](char c) { return (Unsigned(c) & 0xC0) == 0x80; });
        return follows ? sequence.length : 0;
    }
    return 0;
}

}  // namespace

std::size_t AsciiLength(std::string_view text)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    std::size_t length = 0;
    for (std::uint64_t word = 0; length + sizeof word <= text.size(); length += sizeof word) {
        std::memcpy(&word, text.data() + length, sizeof word);
        if ((word & kHighBits) != 0)
            break;
    }
    return length;
}

bool IsAscii(std::string_view text)
{
    text.remove_prefix(AsciiLength(text));
    return std::all_of(text.begin(), text.end(), [](char c) { return Unsigned(c) < 0x80; });
}

Character FirstCharacter(std::string_view text)
{
    const std::size_t length = SequenceLength(text);
    if (length == 0)
        return {kNoCharacter, 1};
    // A lead byte of a sequence of n bytes has n bits that only say so.
    char32_t code = length == 1 ? Unsigned(text[0]) : Unsigned(text[0]) & (0x7FU >> length);
    for (const char c : text.substr(1, length - 1))
        code = code << 6 | (Unsigned(c) & 0x3FU);
    return {code, length};
}

bool IsValidUtf8(std::string_view text)
{
    for (text.remove_prefix(AsciiLength(text)); !text.empty(); text.remove_prefix(AsciiLength(text))) {
        const std::size_t length = SequenceLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::size_t CharacterCount(std::string_view text)
{
    const std::size_t ascii = AsciiLength(text);
    text.remove_prefix(ascii);
    const auto others =
        std::count_if(text.begin(), text.end(), [](char c) { return (Unsigned(c) & 0xC0) != 0x80; });
    return ascii + static_cast<std::size_t>(others);
}

}  // namespace rqm5
