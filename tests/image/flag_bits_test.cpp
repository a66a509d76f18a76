#include "image/flag_bits.h"

#include <gtest/gtest.h>

#include "image/fresh_image.h"

namespace rqm5 {
namespace {

TEST(FlagBits, RowsAreMostSignificantBitFirst)
{
    CloneImage image;
    image.MemEnable[0] = image.MemEnable[127] = image.MemEnable[128] = image.MemEnable[1239] = true;
    EncodeExtraData(image);
    EXPECT_EQ(image.ExtraData[0].Text(), "8" + std::string(30, '0') + "1");
    EXPECT_EQ(image.ExtraData[1].Text(), "8" + std::string(31, '0'));
    // Row 1239 is the last bit before 40 unused ones.
    EXPECT_EQ(image.ExtraData[9].Text(), std::string(21, '0') + "1" + std::string(10, '0'));

    const auto flags = image.MemEnable;
    image.MemEnable.fill(true);
    DecodeExtraData(image);
    EXPECT_EQ(image.MemEnable, flags);
}

TEST(FlagBits, DigitsThatAreNoneAreFourFlagsOff)
{
    CloneImage image;
    image.MemEnable.fill(true);
    image.ExtraData[0] = MemoryBlock("fF?1");
    DecodeExtraData(image);
    for (std::size_t i = 0; i < 16; ++i)
        EXPECT_EQ(image.MemEnable[i], (i >= 4 && i < 8) || i == 15) << i;
}

TEST(FlagBits, LinksKeepAllFiftySix)
{
    CloneImage image;
    BuildEmptyImage(image);
    EXPECT_EQ(image.BankFlagData.Text(), "00000000000000FFFFFFFFFFFFFFFFFF");
    image.BankLink[0] = image.BankLink[49] = image.BankLink[55] = true;
    EncodeBankFlagData(image);
    EXPECT_EQ(image.BankFlagData.Text(), "80000000000041FFFFFFFFFFFFFFFFFF");
    const auto links = image.BankLink;
    image.BankLink.fill(false);
    DecodeBankFlagData(image);
    EXPECT_EQ(image.BankLink, links);
}

}  // namespace
}  // namespace rqm5
