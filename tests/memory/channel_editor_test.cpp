#include "memory/channel_editor.h"

#include <gtest/gtest.h>

#include <tuple>

#include "image/channel_record.h"
#include "memory/bank_layout.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

constexpr int kVfo = EditTarget::kVfo;
constexpr int kMemory = EditTarget::kMemory;

void PutChannel(CloneImage& image, int row, const char* block)
{
    DecodeMemoryBlock(image, MemoryBlock(block), row);
    image.MemEnable[static_cast<std::size_t>(row)] = true;
}

TEST(ChannelEditor, ChecksFrequenciesByRowRegionAndGroup)
{
    using enum Verdict;
    const EditTarget filled{kMemory, 1, 0}, empty{kMemory, 2, 0}, vfo2{kVfo, 3, 0}, vfo6{kVfo, 7, 0};
    const EditTarget pass{kMemory, 1101, kSelectSearchPass}, passElsewhere{kMemory, 1101, kSelectAll};
    const std::tuple<int, EditTarget, const char*, Verdict, const char*> cases[] = {
        // clang-format off
        {0, filled, "1299.995", Accepted, "1299.995000"}, {0, filled, "1299.996", OutOfRange, "433.500000"},
        {0, filled, "0.1", Accepted, "0.100000"}, {0, empty, "0.09", OutOfRange, "145.000000"},
        {0, filled, "", OutOfRange, "433.500000"}, {0, filled, "830", Accepted, "830.000000"},
        {3, filled, "830", Accepted, "830.000000"}, {2, filled, "823.995", Accepted, "823.995000"},
        {2, filled, "823.9999999", Cellular, "433.500000"},  // would be stored as 824
        {2, filled, "824.000", Cellular, "433.500000"}, {2, filled, "849.995", Cellular, "433.500000"},
        {2, filled, "850.000", Accepted, "850.000000"}, {2, filled, "868.995", Accepted, "868.995000"},
        {2, filled, "869", Cellular, "433.500000"},
        {2, filled, "894.995", Cellular, "433.500000"}, {2, filled, "895", Accepted, "895.000000"},
        {0, pass, "101", Duplicate, "100.000000"}, {2, pass, "101", Duplicate, "100.000000"},
        {0, pass, "100", Accepted, "100.000000"},  // itself
        {0, pass, "102", Accepted, "102.000000"},  // disabled
        {0, passElsewhere, "101", Accepted, "101.000000"}, {0, vfo2, "1.625", Accepted, "1.625000"},
        {0, vfo2, "50", OutOfRange, "1.625000"}, {2, vfo2, "29", Accepted, "29.000000"},
        {2, vfo2, "28.999", OutOfRange, "29.000000"}, {2, vfo6, "830", Cellular, "400.000000"},
        {3, vfo6, "830", Accepted, "830.000000"},
        // clang-format on
    };
    for (const auto& [region, target, typed, verdict, becomes] : cases) {
        CloneImage image = StartUpImage(region);
        PutChannel(image, 0, "04335000000000000000000000000000");
        PutChannel(image, 1100, "01000000000000000000000000000000");
        PutChannel(image, 1101, "01010000000000000000000000000000");
        PutChannel(image, 1102, "01020000000000000000000000000000");
        image.MemEnable[1102] = false;
        const CheckedEntry result = CheckFrequency(image, target, typed);
        EXPECT_EQ(result.verdict, verdict) << typed << " in region " << region;
        EXPECT_EQ(result.text, becomes) << typed << " in region " << region;
    }
}

TEST(ChannelEditor, ChecksOffsetsAndRestoresTheStoredOne)
{
    CloneImage image = StartUpImage(0);
    PutChannel(image, 0, "04335000000000000000000000600000");
    const EditTarget memory{kMemory, 1, 0}, vfo{kVfo, 7, 0};
    EXPECT_EQ(CheckOffset(image, memory, "99.999999").text, "99.999999");
    EXPECT_EQ(CheckOffset(image, memory, "").text, "0.000000");
    EXPECT_EQ(CheckOffset(image, memory, "100").verdict, Verdict::OutOfRange);
    EXPECT_EQ(CheckOffset(image, memory, "100").text, "0.6");
    EXPECT_EQ(CheckOffset(image, memory, "99.9999999").text, "0.6");  // would be stored as 100
    EXPECT_EQ(CheckOffset(image, vfo, "100").text, "0.600000");
}

TEST(ChannelEditor, StoresEveryColumnAndText)
{
    CloneImage image = StartUpImage(1);
    // clang-format off
    const ChannelFields fields{.frequency = "145.5", .mode = 2, .step = 19, .option = 1, .secret = 16,
                               .carrier = 27, .tone = 32, .shift = 2, .shiftFrequency = "0.6",
                               .note = "relay", .skip = true, .enable = true};
    // clang-format on
    ASSERT_TRUE(StoreFields(image, {kMemory, 1240, 0}, fields));
    EXPECT_EQ(image.MemData[1239], (ChannelNumbers{145.5, 2, 19, 24, 16, 0, 32, 32, 0.6}));
    EXPECT_EQ(image.MemText[1239], (ChannelTexts{"145.500000", "WFM", "1KHz", "SCRT", "16", "", "203.5Hz",
                                                 "-Shift", "0.600000", "relay"}));
    EXPECT_TRUE(image.MemEnable[1239] && image.DataChanged);

    image.Settings.model = 0;
    ASSERT_TRUE(StoreFields(image, {kVfo, 14, 0}, fields));
    EXPECT_EQ(image.VFOData[13], (ChannelNumbers{145.5, 2, 19, 16, 8, 27, 32, 32, 0.6}));
    EXPECT_EQ(image.VFOText[13][kCarrier], "3000Hz");
    EXPECT_EQ(image.VFOText[13][kNote], "");
}

TEST(ChannelEditor, KeepsWhatNoControlShows)
{
    // Step 15 has no button; option 80 has none either, and only its skip flag may change.
    for (const bool skip : {false, true}) {
        CloneImage image = StartUpImage(0);
        PutChannel(image, 5, "0145500000000F580000000000000000");
        const EditTarget target{kMemory, 6, 0};
        const ChannelTexts before = image.MemText[5];
        ChannelFields fields = LoadFields(image, target);
        EXPECT_TRUE(fields.step == ChannelFields::kNothing && fields.option == ChannelFields::kNothing);
        EXPECT_TRUE(fields.skip);
        fields.skip = skip;
        StoreFields(image, target, fields);
        EXPECT_EQ(image.MemText[5], before);
        EXPECT_EQ(image.MemData[5], (ChannelNumbers{145.5, 0, 15, skip ? 88.0 : 80.0}));
    }
}

TEST(ChannelEditor, UnchangedFieldsStoreTheSameRow)
{
    for (int region = 0; region < kRegions; ++region) {
        CloneImage image = StartUpImage(region);
        PutChannel(image, 7, "12999950000213481009261060000000");
        const CloneImage before = image;
        for (const EditTarget& target : {EditTarget{kMemory, 8, 0}, EditTarget{kVfo, 1, 0}})
            StoreFields(image, target, LoadFields(image, target));
        EXPECT_EQ(EncodeMemoryRow(image, 7), EncodeMemoryRow(before, 7));
        EXPECT_TRUE(image.VFOData == before.VFOData && image.VFOText == before.VFOText);
    }
}

TEST(ChannelEditor, RowsThatAreNotThereCannotBeModified)
{
    CloneImage image = StartUpImage(2);
    const CloneImage before = image;
    for (const EditTarget& target : {EditTarget{kMemory, 0, 0}, EditTarget{kMemory, 1241, 0},
                                     EditTarget{kVfo, 0, 0}, EditTarget{kVfo, 15, 0}}) {
        EXPECT_FALSE(CanModify(image, target) || StoreFields(image, target, {}));
    }
    EXPECT_TRUE(SameContents(image, before));
    EXPECT_TRUE(CanModify(image, {kVfo, 8, 0}) && !CanModify(image, {kVfo, 9, 0}));
}

}  // namespace
}  // namespace rqm5
