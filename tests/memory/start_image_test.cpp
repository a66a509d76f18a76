#include "memory/start_image.h"

#include <gtest/gtest.h>

namespace rqm5 {
namespace {

TEST(StartImage, NewEmptiesEverythingAndKeepsTheModel)
{
    CloneImage image = StartUpImage(2);
    image.MemData(5).frequency = 100'000'000;
    image.MemData(5).note = "a note";
    image.MemData(5).enabled = true;
    image.VFOData(3).note = "another";
    image.SetBankLink(7, true);
    image.SetBankLink(55, true);
    image.Settings().volume = 7;
    NewImage(image);

    CloneImage empty = StartUpImage(2);
    for (int bank = 0; bank < kBanks; ++bank)
        empty.SetBankSize(bank, 0);
    empty.SetBankSize(kUnassigned, 1000);
    EXPECT_TRUE(image == empty);
}

}  // namespace
}  // namespace rqm5
