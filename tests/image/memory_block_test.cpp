#include "image/memory_block.h"

#include <gtest/gtest.h>

#include "image/flag_bits.h"

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
    for (int i = 0; const int expected : {0x1F, 0xA0, 0, 0, 0, 0}) {
        EXPECT_EQ(block.Byte(i), expected) << "byte " << i;
        ++i;
    }
    EXPECT_THROW(static_cast<void>(block.Byte(16)), std::out_of_range);
}

TEST(MemoryBlock, BitsOfABlockDoNotTakeLowerCase)
{
    const MemoryBlock block("a18F");
    EXPECT_TRUE(!block.Bit(0, 1) && block.Bit(0, 8));
    EXPECT_TRUE(block.Bit(1, 1) && !block.Bit(1, 2) && block.Bit(1, 5));
}

TEST(FlagBits, DigitsThatAreNoneAreFourFlagsOff)
{
    CloneImage image;
    for (int row = 0; row < kMemoryRows; ++row)
        image.MemData(row).enabled = true;
    DecodeExtraData(image, std::vector<MemoryBlock>(10, MemoryBlock("fF?1")));
    for (int row = 0; row < kMemoryRows; ++row) {
        const int bit = row % 128;
        EXPECT_EQ(image.MemEnable(row), (bit >= 4 && bit < 8) || bit == 15) << row;
    }
    EXPECT_EQ(BankFlagData(image).Text(), "00000000000000FFFFFFFFFFFFFFFFFF");
}

}  // namespace
}  // namespace rqm5
