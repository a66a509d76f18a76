#include "image/image_change.h"

#include <gtest/gtest.h>

#include <random>

#include "memory/start_image.h"
#include "settings/settings_codec.h"

namespace rqm5 {
namespace {

/// A kind of thing in an image: how many there are, and how one is changed.
struct Kind
{
    int count;
    void (*set)(CloneImage& image, int place, int value);
};

/// In the order of the lists of an ImageChange. The last setting is the count that no page shows.
constexpr Kind kKinds[] = {
    // clang-format off
    {kMemoryRows, [](CloneImage& image, int row, int value) { image.MemData(row).frequency = value; }},
    {kMemoryRows, [](CloneImage& image, int row, int value) { image.MemData(row).note = std::to_string(value); }},
    {kMemoryRows, [](CloneImage& image, int row, int value) { image.MemData(row).enabled = value == 1; }},
    {kVfoRows, [](CloneImage& image, int row, int value) { image.VFOData(row).frequency = value; }},
    {kVfoRows, [](CloneImage& image, int row, int value) { image.VFOData(row).note = std::to_string(value); }},
    {kBankSizes, [](CloneImage& image, int bank, int value) { image.SetBankSize(bank, value); }},
    {kLinkFlags, [](CloneImage& image, int flag, int value) { image.SetBankLink(flag, value == 1); }},
    {kSettings, [](CloneImage& image, int setting, int value) {
         kSettingFields.at(static_cast<std::size_t>(setting)).Set(image.Settings(), value); }},
    // clang-format on
};

std::vector<std::size_t> ListSizes(const ImageChange& change)
{
    return {change.MemData.size(),  change.MemNotes.size(), change.MemEnable.size(), change.VFOData.size(),
            change.VFONotes.size(), change.BankSize.size(), change.BankLink.size(),  change.Settings.size()};
}

void ExpectWayThereAndBack(const ImageChange& change, const CloneImage& before, const CloneImage& after)
{
    CloneImage image = before;
    change.Apply(image);
    EXPECT_TRUE(image == after);
    change.Revert(image);
    EXPECT_TRUE(image == before);
}

TEST(ImageChange, KeepsEveryKindOfItemAndNothingElse)
{
    CloneImage before = StartUpImage(2);
    EXPECT_TRUE(Difference(before, before).IsEmpty());
    for (std::size_t kind = 0; kind < std::size(kKinds); ++kind)
        for (const int place : {0, kKinds[kind].count - 1}) {
            kKinds[kind].set(before, place, 1);
            CloneImage after = before;
            kKinds[kind].set(after, place, 0);
            const ImageChange change = Difference(before, after);
            std::vector<std::size_t> sizes(std::size(kKinds));
            sizes[kind] = 1;
            EXPECT_EQ(ListSizes(change), sizes) << kind << ", " << place;
            EXPECT_EQ(change.MemoryRows(), kind < 3 ? std::vector{place} : std::vector<int>());
            EXPECT_EQ(change.VfoRows(), kind == 3 || kind == 4 ? std::vector{place} : std::vector<int>());
            EXPECT_EQ(change.HasBanks(), kind == 5 || kind == 6);
            EXPECT_FALSE(change.IsEmpty());
            ExpectWayThereAndBack(change, before, after);
        }
}

TEST(ImageChange, KnowsEverySetting)
{
    const CloneImage before = StartUpImage(0);
    CloneImage after = before;
    // Every value another one than in the default blocks.
    DecodeSettings(after, {MemoryBlock("A501FF8101060000FFFFFFFF00010101"),
                           MemoryBlock("0000170002010000934030FFFFFFFFFF")});
    const ImageChange change = Difference(before, after);
    EXPECT_EQ(change.Settings.size(), 21U);
    EXPECT_TRUE(change.HasSetting(&ReceiverSettings::passCount) &&
                change.HasSetting(&ReceiverSettings::bell));
    ExpectWayThereAndBack(change, before, after);
}

TEST(ImageChange, RevertLeavesAloneWhatChangedMeanwhile)
{
    const CloneImage before = StartUpImage(0);
    CloneImage image = before;
    image.MemData(5).enabled = true;
    image.Settings().lamp = 2;
    const ImageChange change = Difference(before, image);
    const auto meanwhile = [](CloneImage& changed) {
        changed.MemData(5).note = "same row";
        changed.MemData(6).enabled = true;
        changed.Settings().bell = true;
    };
    meanwhile(image);
    change.Revert(image);
    CloneImage expected = before;
    meanwhile(expected);
    EXPECT_TRUE(image == expected);
}

/// Few places and values, so that edits meet and take each other back.
void EditAtRandom(CloneImage& image, std::minstd_rand& dice)
{
    for (auto edits = dice() % 30; edits > 0; --edits) {
        const Kind& kind = kKinds[dice() % std::size(kKinds)];
        const int places[] = {0, 1, kind.count - 1};
        kind.set(image, places[dice() % std::size(places)], static_cast<int>(dice() % 2));
    }
}

TEST(ImageChange, AnyEditsGoThereAndBackAndJoinToWhatTheyEndIn)
{
    std::minstd_rand dice(8);
    CloneImage first = StartUpImage(1);
    for (int round = 0; round < 100; ++round) {
        CloneImage second = first;
        EditAtRandom(second, dice);
        CloneImage third = second;
        EditAtRandom(third, dice);
        const ImageChange whole = Difference(first, third);
        ImageChange joined = Difference(first, second);
        joined.Join(Difference(second, third));
        ASSERT_EQ(joined, whole) << round;
        ExpectWayThereAndBack(whole, first, third);
        joined.Join(Difference(third, first));
        ASSERT_TRUE(joined.IsEmpty()) << round;
        first = third;
    }
}

}  // namespace
}  // namespace rqm5
