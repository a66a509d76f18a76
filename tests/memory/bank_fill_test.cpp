#include "memory/bank_fill.h"

#include <gtest/gtest.h>

#include <map>

#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

/// Banks 0 to 2 of 4, 3 and 2 rows; 991 are in no bank.
CloneImage SmallBanks()
{
    CloneImage image;
    for (int bank = 0; const int size : {4, 3, 2})
        image.SetBankSize(bank++, size);
    return image;
}

void Put(CloneImage& image, std::initializer_list<int> rows)
{
    for (const int row : rows) {
        image.MemData(row).frequency = 100'000'000 + row;
        image.MemData(row).note = "row " + std::to_string(row);
        image.MemData(row).enabled = row % 2 == 0;
    }
}

/// Where each channel is now, by the row that Put gave it.
std::map<int, int> Places(const CloneImage& image)
{
    std::map<int, int> places;
    for (int row = 0; row < kRadioRows; ++row)
        if (const Channel& channel = image.MemData(row); channel.HasChannel()) {
            const int old = static_cast<int>(channel.frequency - 100'000'000);
            EXPECT_EQ(channel.note, "row " + std::to_string(old));
            EXPECT_EQ(channel.enabled, old % 2 == 0);
            places[old] = row;
        }
    return places;
}

TEST(BankFill, KeepingBanksMovesChannelsAfterTheSizesAndLosesNone)
{
    struct
    {
        const char* what;
        std::initializer_list<int> sizes;
        Displaced displaced;
        std::map<int, int> places;
    } const cases[] = {
        {"nothing changes", {4, 3, 2}, {0, 0}, {{0, 0}, {3, 3}, {4, 4}, {8, 8}, {9, 9}, {999, 999}}},
        {"grown", {6, 3, 2}, {3, 0}, {{0, 0}, {3, 3}, {4, 6}, {8, 10}, {9, 11}, {999, 999}}},
        {"cut, and its last row goes behind the banks",
         {3, 3, 2},
         {2, 1},
         {{0, 0}, {3, 8}, {4, 3}, {8, 7}, {9, 9}, {999, 999}}},
        {"gone", {0, 3, 2}, {4, 0}, {{0, 5}, {3, 8}, {4, 0}, {8, 4}, {9, 9}, {999, 999}}},
        {"several at once", {3, 3, 3}, {1, 2}, {{0, 0}, {3, 9}, {4, 3}, {8, 7}, {9, 10}, {999, 999}}},
    };
    for (const auto& row : cases) {
        CloneImage image = SmallBanks();
        Put(image, {0, 3, 4, 8, 9, 999});
        const BankSizes before = SizesOfBanks(image);
        for (int bank = 0; const int size : row.sizes)
            image.SetBankSize(bank++, size);
        EXPECT_EQ(DisplacedChannels(image, before), row.displaced) << row.what;
        KeepBanks(image, before);
        EXPECT_EQ(Places(image), row.places) << row.what;
    }
}

TEST(BankFill, NothingIsOfferedWhereNothingWouldMove)
{
    CloneImage image = SmallBanks();
    Put(image, {0, 8, 9});
    const BankSizes before = SizesOfBanks(image);
    image.SetBankSize(2, 1);
    EXPECT_FALSE(CanKeepBanks(image, before)) << "the last bank lost a row, which is in no bank either way";
    image.SetBankSize(0, 5);
    EXPECT_TRUE(CanKeepBanks(image, before));
}

TEST(BankFill, ABankThatGrowsInAFullMemoryTakesWhatIsInNoBank)
{
    CloneImage image;
    image.SetBankSize(0, 10);
    image.SetBankSize(1, 988);
    for (int row = 0; row < kBankRows; ++row)
        Put(image, {row});
    const BankSizes before = SizesOfBanks(image);
    image.SetBankSize(0, 12);
    KeepBanks(image, before);
    const auto places = Places(image);
    EXPECT_EQ(places.size(), 1000U);
    EXPECT_EQ(places.at(998), 10);
    EXPECT_EQ(places.at(999), 11);
    EXPECT_EQ(places.at(10), 12);
}

}  // namespace
}  // namespace rqm5
