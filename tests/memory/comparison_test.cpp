#include "memory/comparison.h"

#include <gtest/gtest.h>

#include <functional>

#include "memory/start_image.h"
#include "memory/take_differences.h"

namespace rqm5 {
namespace {

Channel ChannelAt(std::int64_t megahertz, const char* note = "")
{
    Channel channel;
    channel.frequency = megahertz * 1'000'000;
    channel.blank = 0;
    channel.note = note;
    channel.enabled = true;
    return channel;
}

/// Banks 0 and 1 with channels in rows 0 to 4 and 200, all of them different.
CloneImage SomeImage()
{
    CloneImage image = StartUpImage(0);
    for (int row = 0; row < 5; ++row)
        image.MemData(row) = ChannelAt(100 + row, "n");
    image.MemData(200) = ChannelAt(433);
    return image;
}

/// "Bank 0 > Bank 0, channel 1: Mode Note; to Bank 0, channel 3; from row 5", the differing fields first.
std::string Line(const DifferentItem& item)
{
    std::string line = Message::List({ComparedGroupName(item.group), item.name}, " > ").English() + ":";
    for (int field = 0; field < kRowFields && item.id.IsRow() && item.isHere && item.isThere; ++field)
        if (item.fields.at(static_cast<std::size_t>(field)).differs)
            line += " " + std::string(RowFieldName(field));
    if (!item.id.IsRow() || item.isHere != item.isThere)
        line += " " + item.here.English() + " | " + item.there.English();
    if (!item.movedTo.empty())
        line += "; to " + item.movedTo.English();
    if (!item.movedFrom.empty())
        line += "; from " + item.movedFrom.English();
    return line;
}

using Lines = std::vector<std::string>;

Lines LinesOf(const Comparison& comparison, int filter = kAllDifferences)
{
    Lines lines;
    for (const DifferentItem& item : comparison)
        if (IsShown(item, filter))
            lines.push_back(Line(item));
    return lines;
}

struct Case
{
    const char* what;
    std::function<void(CloneImage&)> change;
    Lines lines;
    ComparedParts parts = {};
};

const Case kCases[] = {
    // clang-format off
    {"fields", [](CloneImage& b) { b.MemData(1).mode = 1; b.MemData(1).option = 8; b.MemData(1).enabled = false; },
     {"Bank 0 > Bank 0, channel 1: Mode Skip Enabled"}},
    {"only one side has a channel",
     [](CloneImage& b) { b.MemData(2) = {}; b.MemData(9) = ChannelAt(99, "x"); b.MemData(1202) = ChannelAt(98); },
     {"Bank 0 > Bank 0, channel 2: 102.000000 FM, n | (empty)", "Bank 0 > Bank 0, channel 9: (empty) | 99.000000 FM, x",
      "Priority > Priority Pr2: (empty) | 98.000000 FM"}},
    {"one row put in between moves those behind it",
     [](CloneImage& b) { b.MemData(5) = b.MemData(4); b.MemData(4) = b.MemData(3); b.MemData(3) = ChannelAt(77); },
     {"Bank 0 > Bank 0, channel 3: Frequency Note; to Bank 0, channel 4",
      "Bank 0 > Bank 0, channel 4: Frequency; to Bank 0, channel 5; from Bank 0, channel 3",
      "Bank 0 > Bank 0, channel 5: (empty) | 104.000000 FM, n; from Bank 0, channel 4"}},
    {"what one side has twice has not plainly moved",
     [](CloneImage& b) { b.MemData(6) = b.MemData(7) = b.MemData(0); b.MemData(0) = {}; },
     {"Bank 0 > Bank 0, channel 0: 100.000000 FM, n | (empty)", "Bank 0 > Bank 0, channel 6: (empty) | 100.000000 FM, n",
      "Bank 0 > Bank 0, channel 7: (empty) | 100.000000 FM, n"}},
    {"a bank grew and its neighbour moved",
     [](CloneImage& b) { b.SetBankSize(0, 201); b.SetBankSize(1, 149); std::swap(b.MemData(200), b.MemData(201)); },
     {"Bank 1 > Bank 1, channel 0: 433.000000 FM | (empty); to row 201",
      "Bank 1 > Bank 1, channel 1: (empty) | 433.000000 FM; from Bank 1, channel 0",
      "Bank layout > Bank 0 size: 200 | 201", "Bank layout > Bank 1 size: 150 | 149"}},
    {"other groups in their order",
     [](CloneImage& b) {
         b.Settings().lamp = 2; b.SetBankLink(3, true); b.VFOData(2).step = 9; b.MemData(1001) = ChannelAt(97);
         b.MemData(1239) = ChannelAt(96);
     },
     {"Program Scan > Program Scan 0B: (empty) | 97.000000 FM", "Not in the receiver > row 1239: (empty) | 96.000000 FM",
      "VFO bands > VFO row 2: Step", "Bank layout > Bank 3 link: off | on", "Settings > Lamp: 5sec | ON"}},
    {"wording and what no block holds exactly",
     [](CloneImage& b) { b.MemData(0).isSecretEdited = true; b.MemData(1).shiftFrequency = 500'000; b.MemData(0).step = 0; }, {}},
    {"the receiver has no notes and no rows behind 1209",
     [](CloneImage& b) { b.MemData(0).note = "other"; b.MemData(1210) = ChannelAt(1); b.MemData(30).enabled = true; },
     {}, kReceiverParts},
    {"a backup of a bank", [](CloneImage& b) { b = StartUpImage(0); b.Settings().lamp = 2; b.SetBankLink(1, true); },
     {"Bank 1 > Bank 1, channel 0: 433.000000 FM | (empty)", "Bank layout > Bank 1 link: off | on"},
     {.rows = {200, 150}, .settings = false, .notes = false}},
    // clang-format on
};

TEST(Comparison, TellsWhatDiffersAndTakesItAll)
{
    for (const Case& test : kCases) {
        CloneImage here = SomeImage();
        here.MemData(1).shiftFrequency = 50'000;  // a block brings back 0.5 MHz
        CloneImage there = here;
        test.change(there);
        const Comparison comparison = Compare(here, there, test.parts);
        EXPECT_EQ(LinesOf(comparison), test.lines) << test.what;

        std::vector<ItemId> items;
        for (const DifferentItem& item : comparison)
            items.push_back(item.id);
        ASSERT_TRUE(TakeDifferences(here, there, test.parts, items));
        EXPECT_TRUE(Compare(here, there, test.parts).empty()) << test.what;
        EXPECT_EQ(here.MemData(1).shiftFrequency, 50'000) << test.what;
        EXPECT_EQ(here.BankSize(kUnassigned), 0) << test.what;
    }
}

TEST(Comparison, FiltersByWhatDiffers)
{
    const CloneImage here = SomeImage();
    CloneImage there = here;
    kCases[2].change(there);
    there.MemData(0).mode = 2;
    there.MemData(1) = {};
    there.MemData(200).note = "new";
    there.Settings().volume = 3;
    const std::pair<int, std::size_t> counts[] = {
        {kAllDifferences, 7},
        {kOnlyHere, 1},
        {kOnlyThere, 0},
        {kMoved, 3},
        {kChangedInPlace, 4},
        {kFieldDiffers + +kMode, 1},
        {kFieldDiffers + +kNote, 2},
        {kFieldDiffers + +kTone, 0},
    };
    const Comparison comparison = Compare(here, there);
    for (const auto& [filter, count] : counts)
        EXPECT_EQ(LinesOf(comparison, filter).size(), count) << filter;
}

TEST(Comparison, TakingKeepsNotesThatTheOtherSideCannotHoldAndRefusesTooManyChannels)
{
    CloneImage here = SomeImage();
    CloneImage there = here;
    there.MemData(0).mode = 1;
    there.MemData(0).note.clear();
    there.MemData(1) = {};
    there.Settings().volume = 3;
    there.Settings().passCount = 7;
    there.SetBankSize(0, 210);
    there.SetBankSize(1, 140);
    EXPECT_FALSE(TakeDifferences(here, there, kReceiverParts, {{ItemKind::BankSize, 0}}));
    EXPECT_EQ(here, SomeImage());
    EXPECT_TRUE(TakeDifferences(here, there, kReceiverParts, {{ItemKind::BankSize, 1}}));
    EXPECT_EQ(here.BankSize(kUnassigned), 10);
    ASSERT_TRUE(
        TakeDifferences(here, there, kReceiverParts,
                        {{ItemKind::MemoryRow, 0}, {ItemKind::MemoryRow, 1}, {ItemKind::Setting, 2}}));
    EXPECT_EQ(here.MemData(0).mode, 1);
    EXPECT_EQ(here.MemData(0).note, "n");
    EXPECT_EQ(here.MemData(1).note, "");
    EXPECT_EQ(here.Settings(), there.Settings())
        << "the count of Search Pass channels comes with the last one";
}

}  // namespace
}  // namespace rqm5
