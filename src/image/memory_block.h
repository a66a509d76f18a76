#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace rqm5 {

inline constexpr int kBlockBytes = 16;
inline constexpr std::size_t kBlockChars = 2 * kBlockBytes;

/// 16 bytes of receiver memory as they travel: 32 upper-case hex characters, byte 0 first.
///
/// The characters are kept as they came, hex digits or not: neither the receiver nor a file is checked
/// when a block is taken over. Reading never fails; what is no number reads as 0.
class MemoryBlock
{
  public:
    /// All zero digits.
    MemoryBlock() { text_.fill('0'); }

    /// Takes the first 32 characters; a shorter text is filled up with "0".
    explicit MemoryBlock(std::string_view text);

    std::string_view Text() const { return {text_.data(), text_.size()}; }
    std::string String() const { return std::string(Text()); }

    /// Byte 0 to 15 as a number 0 to 255; 0 when its two characters are not both hex digits.
    int Byte(int index) const;

    /// True when both characters of byte 0 to 15 are hex digits.
    bool HasByte(int index) const;

    /// Bit of a byte, position 1 (most significant) to 8. Goes digit by digit through HexDigitToBits, so a
    /// character that is no upper-case hex digit gives four zero bits.
    bool Bit(int index, int position) const;

    /// Replaces byte 0 to 15 with a number 0 to 255, as two upper-case hex digits.
    void SetByte(int index, int value);

    /// True when every character is an upper-case hex digit.
    bool IsHex() const;

    /// The 16-bit word at byte 2 * index, low byte first, as the signed number it is.
    int Word(int index) const;

    friend bool operator==(const MemoryBlock&, const MemoryBlock&) = default;

  private:
    char Digit(int place) const { return text_.at(static_cast<std::size_t>(place)); }

    std::array<char, kBlockChars> text_{};
};

/// A number 0 to 255 as two upper-case hex digits.
std::string HexByte(int value);

/// A number 0 to 65535 as four upper-case hex digits: a block address as it stands in a command.
std::string HexAddress(int address);

/// One hex digit to its 4-character bit string, most significant bit first. Anything but 0-9 and A-F
/// gives "0000", lower-case letters included.
std::string_view HexDigitToBits(char digit);

/// The inverse of HexDigitToBits over its sixteen strings. Any other input gives '\0', no digit at all.
char BitsToHexDigit(std::string_view bits);

}  // namespace rqm5
