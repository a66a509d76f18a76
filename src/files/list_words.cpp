#include "files/list_words.h"

#include "image/utf8.h"

namespace rqm5 {
namespace {

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsLetter(char c)
{
    return Lower(c) >= 'a' && Lower(c) <= 'z';
}

}  // namespace

std::string Trimmed(std::string_view text)
{
    constexpr std::string_view kBlank = "\u00A0";
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    for (;;) {
        if (!text.empty() && isBlank(text.front()))
            text.remove_prefix(1);
        else if (!text.empty() && isBlank(text.back()))
            text.remove_suffix(1);
        else if (text.starts_with(kBlank))
            text.remove_prefix(kBlank.size());
        else if (text.ends_with(kBlank))
            text.remove_suffix(kBlank.size());
        else
            return std::string(text);
    }
}

std::string PlainWords(std::string_view text)
{
    std::string plain;
    bool isGap = false;
    for (const char c : text) {
        const bool isPart = IsLetter(c) || IsDigit(c) || static_cast<unsigned char>(c) >= 0x80;
        if (isPart && isGap && !plain.empty())
            plain += ' ';
        isGap = !isPart;
        if (isPart)
            plain += Lower(c);
    }
    return plain;
}

std::string FoldedWords(std::string_view text)
{
    // From U+00C0 on; a capital letter stands 32 places before its small one.
    constexpr std::string_view kBases = "aaaaaaaceeeeiiiidnooooo ouuuuy  ";
    std::string folded;
    while (!text.empty()) {
        const Character next = FirstCharacter(text);
        const char32_t code = next.code;
        if (code >= 0xC0 && code < 0x100 && code != 0xD7 && code != 0xF7 && code != 0xDE && code != 0xFE)
            folded += code == 0xDF ? "ss" : code == 0xFF ? "y" : kBases.substr((code - 0xC0) % 32, 1);
        else if (code > 0xFF00 && code < 0xFF5F)
            folded += static_cast<char>(code - 0xFF00 + 0x20);
        else
            folded += text.substr(0, next.length);
        text.remove_prefix(next.length);
    }
    return PlainWords(folded);
}

}  // namespace rqm5
