#pragma once

#include <cstddef>
#include <string_view>

namespace rqm5 {

inline constexpr char32_t kNoCharacter = 0xFFFFFFFF;

struct Character
{
    char32_t code;       ///< kNoCharacter for a byte that begins no well-formed sequence
    std::size_t length;  ///< bytes, 1 at least
};

/// The first character of a text that is not empty.
Character FirstCharacter(std::string_view text);

/// True for well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool IsValidUtf8(std::string_view text);

/// How many characters a UTF-8 text has.
std::size_t CharacterCount(std::string_view text);

/// How many characters at the front of a text are plain ASCII for certain. Nearly all of every file is, so
/// it is worth looking at eight bytes at a time.
std::size_t AsciiLength(std::string_view text);

bool IsAscii(std::string_view text);

}  // namespace rqm5
