#include "image/memory_block.h"

#include <algorithm>

namespace rqm5 {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

constexpr std::array<std::string_view, 16> kBits = {"0000", "0001", "0010", "0011", "0100", "0101",
                                                    "0110", "0111", "1000", "1001", "1010", "1011",
                                                    "1100", "1101", "1110", "1111"};

int HexValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    return -1;
}

std::string HexText(int value, std::size_t digits)
{
    std::string text(digits, '0');
    for (auto digit = text.rbegin(); digit != text.rend(); ++digit, value /= 16)
        *digit = kHexDigits[static_cast<std::size_t>(value % 16)];
    return text;
}

}  // namespace

MemoryBlock::MemoryBlock(std::string_view text) : MemoryBlock()
{
    std::copy_n(text.begin(), std::min(text.size(), kBlockChars), text_.begin());
}

int MemoryBlock::Byte(int index) const
{
    return HasByte(index) ? HexValue(Digit(2 * index)) * 16 + HexValue(Digit(2 * index + 1)) : 0;
}

bool MemoryBlock::HasByte(int index) const
{
    return HexValue(Digit(2 * index)) >= 0 && HexValue(Digit(2 * index + 1)) >= 0;
}

bool MemoryBlock::IsHex() const
{
    return Text().find_first_not_of(kHexDigits) == std::string_view::npos;
}

bool MemoryBlock::Bit(int index, int position) const
{
    const int bit = position - 1;
    return HexDigitToBits(Digit(2 * index + bit / 4)).at(static_cast<std::size_t>(bit % 4)) == '1';
}

void MemoryBlock::SetByte(int index, int value)
{
    const std::string digits = HexByte(value);
    const int first = 2 * index;
    std::copy(digits.begin(), digits.end(), &text_.at(static_cast<std::size_t>(first)));
}

int MemoryBlock::Word(int index) const
{
    const int word = Byte(2 * index) + 256 * Byte(2 * index + 1);
    return word < 0x8000 ? word : word - 0x10000;
}

std::string HexByte(int value)
{
    return HexText(value & 0xFF, 2);
}

std::string HexAddress(int address)
{
    return HexText(address & 0xFFFF, 4);
}

std::string_view HexDigitToBits(char digit)
{
    const auto index = kHexDigits.find(digit);
    return index == std::string_view::npos ? kBits[0] : kBits[index];
}

char BitsToHexDigit(std::string_view bits)
{
    const auto* found = std::find(kBits.begin(), kBits.end(), bits);
    return found == kBits.end() ? '\0' : kHexDigits[static_cast<std::size_t>(found - kBits.begin())];
}

}  // namespace rqm5
