#include "image/flag_bits.h"

#include <span>

namespace rqm5 {
namespace {

/// Hex digits into flags, four a digit, until either runs out.
void FlagsFromDigits(std::string_view digits, std::span<bool> flags)
{
    std::size_t next = 0;
    for (const char digit : digits)
        for (const char bit : HexDigitToBits(digit)) {
            if (next == flags.size())
                return;
            flags[next++] = bit == '1';
        }
}

/// Flags into hex digits, the first flag the most significant bit; missing flags count as off.
std::string DigitsFromFlags(std::span<const bool> flags)
{
    std::string digits;
    for (std::size_t first = 0; first < flags.size(); first += 4) {
        std::string bits = "0000";
        for (std::size_t i = 0; i < 4 && first + i < flags.size(); ++i)
            bits[i] = flags[first + i] ? '1' : '0';
        digits += BitsToHexDigit(bits);
    }
    return digits;
}

}  // namespace

void DecodeExtraData(CloneImage& image)
{
    std::string digits;
    for (const MemoryBlock& block : image.ExtraData)
        digits += block.Text();
    FlagsFromDigits(digits, image.MemEnable);
}

void EncodeExtraData(CloneImage& image)
{
    const std::string digits = DigitsFromFlags(image.MemEnable);
    for (std::size_t i = 0; i < image.ExtraData.size(); ++i)
        image.ExtraData[i] = MemoryBlock(std::string_view(digits).substr(i * kBlockChars));
}

void DecodeBankFlagData(CloneImage& image)
{
    FlagsFromDigits(image.BankFlagData.Text(), image.BankLink);
}

void EncodeBankFlagData(CloneImage& image)
{
    const std::string digits = DigitsFromFlags(image.BankLink);
    image.BankFlagData = MemoryBlock(digits + std::string(kBlockChars - digits.size(), 'F'));
}

}  // namespace rqm5
