#include "memory/start_image.h"

#include <gtest/gtest.h>

#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

TEST(StartImage, NewEmptiesEverythingAndKeepsTheModel)
{
    CloneImage image = StartUpImage(2);
    image.MemData[5][kFrequency] = 100;
    image.MemText[5][kNote] = "a note";
    image.VFOText[3][kNote] = "another";
    image.MemEnable[5] = image.BankLink[7] = image.BankLink[55] = true;
    image.Settings.volume = 7;
    image.DataChanged = true;
    NewImage(image);
    EXPECT_EQ(image.Settings.model, 2);
    EXPECT_EQ(image.Settings.volume, 30);
    EXPECT_EQ(image.VFOText[2][kFrequency], "29.000000");

    CloneImage empty = StartUpImage(2);
    for (int bank = 0; bank < kBanks; ++bank)
        SetBankSize(empty, bank, 0);
    SetBankSize(empty, kUnassigned, 1000);
    EXPECT_TRUE(SameContents(image, empty));
    EXPECT_FALSE(image.DataChanged);
    EXPECT_EQ(image.BankSizeText[0], "0");
}

}  // namespace
}  // namespace rqm5
