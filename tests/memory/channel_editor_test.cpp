#include "memory/channel_editor.h"

#include <gtest/gtest.h>

#include <tuple>

#include "image/channel_block.h"
#include "image/row_texts.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

using enum RowKind;
using Texts = std::vector<std::string>;

void PutChannel(CloneImage& image, int row, const char* block)
{
    DecodeMemoryBlock(image, MemoryBlock(block), row);
    image.MemData(row).enabled = true;
}

TEST(ChannelEditor, ChecksFrequenciesByRowRegionAndGroup)
{
    using enum Verdict;
    using Place = std::pair<RowId, int>;  // the row, and the selector of the group shown
    const Place filled{{Memory, 0}, 0}, empty{{Memory, 1}, 0}, vfo2{{Vfo, 2}, 0}, vfo6{{Vfo, 6}, 0};
    const Place pass{{Memory, 1100}, kSelectSearchPass}, passElsewhere{{Memory, 1100}, kSelectAll};
    const std::tuple<int, Place, const char*, Verdict, const char*> cases[] = {
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
    for (const auto& [region, place, typed, verdict, becomes] : cases) {
        CloneImage image = StartUpImage(region);
        PutChannel(image, 0, "04335000000000000000000000000000");
        PutChannel(image, 1100, "01000000000000000000000000000000");
        PutChannel(image, 1101, "01010000000000000000000000000000");
        PutChannel(image, 1102, "01020000000000000000000000000000");
        image.MemData(1102).enabled = false;
        const CheckedEntry result = CheckFrequency(image, place.first, place.second, typed);
        EXPECT_EQ(result.verdict, verdict) << typed << " in region " << region;
        EXPECT_EQ(result.text, becomes) << typed << " in region " << region;
    }
}

TEST(ChannelEditor, ChecksOffsetsAndRestoresTheStoredOne)
{
    CloneImage image = StartUpImage(0);
    PutChannel(image, 0, "04335000000000000000000000600000");
    const RowId memory{Memory, 0}, vfo{Vfo, 6};
    EXPECT_EQ(CheckOffset(image, memory, 0, "99.999999").text, "99.999999");
    EXPECT_EQ(CheckOffset(image, memory, 0, "").text, "0.000000");
    EXPECT_EQ(CheckOffset(image, memory, 0, "100").verdict, Verdict::OutOfRange);
    EXPECT_EQ(CheckOffset(image, memory, 0, "100").text, "0.6");
    EXPECT_EQ(CheckOffset(image, memory, 0, "99.9999999").text, "0.6");  // would be stored as 100
    EXPECT_EQ(CheckOffset(image, vfo, 0, "100").text, "0.600000");
}

TEST(ChannelEditor, StoresEveryColumnAndText)
{
    CloneImage image = StartUpImage(1);
    // clang-format off
    const ChannelFields fields{.frequency = "145.5", .mode = 2, .step = 19, .option = 1, .secret = 16,
                               .carrier = 27, .tone = 32, .shift = 2, .shiftFrequency = "0.6",
                               .note = "relay", .skip = true, .enable = true};
    // clang-format on
    ASSERT_TRUE(StoreFields(image, {Memory, 1239}, fields));
    EXPECT_EQ(EncodeMemoryRow(image, 1239).Text(), "01455000000213181000202000600000");
    EXPECT_EQ(TextsOf(image.MemData(1239)), (Texts{"145.500000", "WFM", "1KHz", "SCRT", "16", "", "203.5Hz",
                                                   "-Shift", "0.600000", "relay"}));
    EXPECT_TRUE(image.MemEnable(1239));

    image.Settings().model = 0;
    ASSERT_TRUE(StoreFields(image, {Vfo, 13}, fields));
    EXPECT_EQ(EncodeVfoRow(image, 13).Text(), "0145500000021310081B202000600000");
    EXPECT_EQ(image.VFOText(13, kCarrier), "3000Hz");
    EXPECT_EQ(image.VFOText(13, kNote), "");
    EXPECT_FALSE(image.VFOData(13).enabled);
}

TEST(ChannelEditor, KeepsWhatNoControlShows)
{
    // Step 15 has no button; option 80 has none either, and only its skip flag may change.
    constexpr RowId kRow{Memory, 5};
    for (const bool skip : {false, true}) {
        CloneImage image = StartUpImage(0);
        PutChannel(image, 5, "0145500000000F580000000000000000");
        const Texts before = TextsOf(image.At(kRow));
        ChannelFields fields = LoadFields(image, kRow);
        EXPECT_TRUE(fields.step == ChannelFields::kNothing && fields.option == ChannelFields::kNothing);
        EXPECT_TRUE(fields.skip);
        fields.skip = skip;
        StoreFields(image, kRow, fields);
        EXPECT_EQ(TextsOf(image.At(kRow)), before);
        EXPECT_EQ(EncodeMemoryRow(image, 5).Text(),
                  skip ? "0145500000000F580000000000000000" : "0145500000000F500000000000000000");
    }
}

TEST(ChannelEditor, UnchangedFieldsStoreTheSameRow)
{
    for (int region = 0; region < kRegions; ++region) {
        CloneImage image = StartUpImage(region);
        PutChannel(image, 7, "12999950000213481009261060000000");
        const CloneImage before = image;
        for (const RowId id : {RowId{Memory, 7}, RowId{Vfo, 0}})
            StoreFields(image, id, LoadFields(image, id));
        EXPECT_TRUE(image == before) << region;
    }
}

TEST(ChannelEditor, RowsThatAreNotThereCannotBeModified)
{
    CloneImage image = StartUpImage(2);
    const CloneImage before = image;
    for (const RowId id : {RowId{Memory, -1}, RowId{Memory, 1240}, RowId{Vfo, -1}, RowId{Vfo, 14}})
        EXPECT_FALSE(CanModify(image, id) || StoreFields(image, id, {}));
    EXPECT_TRUE(image == before);
    EXPECT_TRUE(CanModify(image, {Vfo, 7}) && !CanModify(image, {Vfo, 8}));
}

}  // namespace
}  // namespace rqm5
