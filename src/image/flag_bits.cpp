#include "image/flag_bits.h"

#include <algorithm>

namespace rqm5 {
namespace {

/// Hex digits into flags, four a digit, until either runs out.
template <class SetFlag>
void FlagsFromDigits(std::string_view digits, int count, SetFlag set)
{
    int next = 0;
    for (const char digit : digits)
        for (const char bit : HexDigitToBits(digit)) {
            if (next == count)
                return;
            set(next++, bit == '1');
        }
}

/// Flags first to last into hex digits, the first the most significant bit; missing flags count as off.
template <class Flag>
std::string DigitsFromFlags(int first, int last, Flag flag)
{
    std::string digits;
    for (; first <= last; first += 4) {
        std::string bits;
        for (int i = first; i < first + 4; ++i)
            bits += i <= last && flag(i) ? '1' : '0';
        digits += BitsToHexDigit(bits);
    }
    return digits;
}

}  // namespace

MemoryBlock FlagBlock(const CloneImage& image, int index)
{
    constexpr int kFlags = 8 * kBlockBytes;
    const int last = std::min((index + 1) * kFlags, kMemoryRows) - 1;
    return MemoryBlock(
        DigitsFromFlags(index * kFlags, last, [&image](int row) { return image.MemEnable(row); }));
}

std::array<MemoryBlock, 10> ExtraData(const CloneImage& image)
{
    std::array<MemoryBlock, 10> blocks;
    for (int index = 0; MemoryBlock & block : blocks)
        block = FlagBlock(image, index++);
    return blocks;
}

void DecodeExtraData(CloneImage& image, std::span<const MemoryBlock> blocks)
{
    std::string digits;
    for (const MemoryBlock& block : blocks)
        digits += block.Text();
    FlagsFromDigits(digits, kMemoryRows, [&image](int row, bool on) { image.MemData(row).enabled = on; });
}

MemoryBlock BankFlagData(const CloneImage& image)
{
    const std::string digits =
        DigitsFromFlags(0, kLinkFlags - 1, [&image](int flag) { return image.BankLink(flag); });
    return MemoryBlock(digits + std::string(kBlockChars - digits.size(), 'F'));
}

void DecodeBankFlagData(CloneImage& image, const MemoryBlock& block)
{
    FlagsFromDigits(block.Text(), kLinkFlags, [&image](int flag, bool on) { image.SetBankLink(flag, on); });
}

}  // namespace rqm5
