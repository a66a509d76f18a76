#include "image/memory_block.h"

#include <gtest/gtest.h>

namespace rqm5 {
namespace {

TEST(MemoryBlock, TakesAnyTextWithoutReadingPastIt)
{
    EXPECT_EQ(MemoryBlock("").Text(), std::string(32, '0'));
    EXPECT_EQ(MemoryBlock("AB").Text(), "AB" + std::string(30, '0'));
    EXPECT_EQ(MemoryBlock(std::string(40, 'F')).Text(), std::string(32, 'F'));
    EXPECT_EQ(MemoryBlock("\x01\xff\n?").Byte(0), 0);
}

TEST(MemoryBlock, ByteThatIsNotTwoHexDigitsReadsAsZero)
{
    const MemoryBlock block("1Fa0G11G- 0x");
    const int expected[] = {0x1F, 0xA0, 0, 0, 0, 0};
    for (std::size_t i = 0; i < std::size(expected); ++i)
        EXPECT_EQ(block.Byte(i), expected[i]) << "byte " << i;
    EXPECT_THROW(static_cast<void>(block.Byte(16)), std::out_of_range);
}

TEST(MemoryBlock, WordsAreSignedLowByteFirst)
{
    const MemoryBlock block("C80000FFFFFF");
    EXPECT_EQ(block.Word(0), 200);
    EXPECT_EQ(block.Word(1), -256);
    EXPECT_EQ(block.Word(2), -1);
}

TEST(HexDigits, ConvertBothWaysAndRefuseTheRest)
{
    for (int value = 0; value < 16; ++value) {
        const char digit = HexByte(value)[1];
        const std::string_view bits = HexDigitToBits(digit);
        EXPECT_EQ(std::stoi(std::string(bits), nullptr, 2), value);
        EXPECT_EQ(BitsToHexDigit(bits), digit);
    }
    for (const char other : {'a', 'f', 'G', ' ', '\0', '\xff'})
        EXPECT_EQ(HexDigitToBits(other), "0000");
    for (const char* other : {"", "1", "11111", "002 ", "abcd"})
        EXPECT_EQ(BitsToHexDigit(other), '\0');
}

TEST(HexDigits, BitsOfABlockDoNotTakeLowerCase)
{
    const MemoryBlock block("a18F");
    EXPECT_TRUE(!block.Bit(0, 1) && block.Bit(0, 8));
    EXPECT_TRUE(block.Bit(1, 1) && !block.Bit(1, 2) && block.Bit(1, 5));
}

}  // namespace
}  // namespace rqm5
