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
    image.DataChanged = true;
    NewImage(image);

    CloneImage empty = StartUpImage(2);
    for (int bank = 0; bank < kBanks; ++bank)
        SetBankSize(empty, bank, 0);
    SetBankSize(empty, kUnassigned, 1000);
    EXPECT_TRUE(SameContents(image, empty));
    EXPECT_FALSE(image.DataChanged);
}

}  // namespace
}  // namespace rqm5
