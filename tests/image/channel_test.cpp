#include "image/channel.h"

#include <gtest/gtest.h>

#include <tuple>

#include "files/csv_file.h"
#include "image/channel_block.h"
#include "image/row_texts.h"
#include "memory/channel_editor.h"

namespace rqm5 {
namespace {

using enum RowKind;
using Texts = std::vector<std::string>;

TEST(CellText, RegionsShowOnlyWhatTheyHave)
{
    // Tone with skip, secret code 5, carrier 300Hz; the second row without skip, the third is empty.
    CloneImage image;
    DecodeMemoryBlock(image, MemoryBlock("01455000000000380500000000000000"), 0);
    DecodeMemoryBlock(image, MemoryBlock("01455000000000300500000000000000"), 1);
    DecodeVfoBlock(image, MemoryBlock("01455000000000380500000000000000"), 0);
    // Region; secret code of the three memory rows; carrier of the first and the third; both of the VFO row.
    const std::tuple<int, Texts, Texts, Texts> cases[] = {
        {kNoRegion, {"5", "5", ""}, {"300Hz", ""}, {"5", "300Hz"}},
        {0, {"5", "5", ""}, {"300Hz", ""}, {"-", "300Hz"}},
        {1, {"*", "", ""}, {"300Hz", ""}, {"5", "-"}},
        {2, {"*", "", ""}, {"-", "-"}, {"-", "-"}},
        {3, {"*", "", ""}, {"-", "-"}, {"-", "-"}},
    };
    for (const auto& [region, secret, carrier, vfo] : cases) {
        const auto cell = [&, shown = region](int row, Column column) {
            return CellText(image.MemData(row), Memory, shown, column);
        };
        const Texts band = TextsOf(image.VFOData(0), Vfo, region);
        EXPECT_EQ((Texts{cell(0, kSecret), cell(1, kSecret), cell(2, kSecret)}), secret) << region;
        EXPECT_EQ((Texts{cell(0, kCarrier), cell(2, kCarrier)}), carrier) << region;
        EXPECT_EQ((Texts{band[kSecret], band[kCarrier]}), vfo) << region;
        EXPECT_EQ(cell(0, kFrequency) + cell(0, kTone) + band[kOption], "145.50000067.0HzTone") << region;
    }
}

TEST(CellText, WordsTellHowAValueCameIn)
{
    constexpr RowId kRow{Memory, 0};
    CloneImage image;
    DecodeMemoryBlock(image, MemoryBlock("01455000000000100007000000000000"), 0);
    const auto words = [&image] { return image.MemText(0, kOption) + " " + image.MemText(0, kCarrier); };
    EXPECT_EQ(words(), "Scrt 1000Hz");
    StoreFields(image, kRow, LoadFields(image, kRow));
    EXPECT_EQ(words(), "SCRT 1000Hz");
    ASSERT_EQ(ParseCsv("RQ-M5,MEMORY,0,145.5,FM,9KHz,SCRT,0,900Hz,67.0Hz,OFF,0,,,", image).rows, 1);
    EXPECT_EQ(words(), "Scrt 900Hz");
    EXPECT_EQ(image.MemData(0).carrier, 7);
    // The editor of a region without a carrier leaves it alone, wording included.
    image.Settings().model = 1;
    StoreFields(image, kRow, LoadFields(image, kRow));
    EXPECT_EQ(words(), "SCRT 900Hz");
    image.Settings().model = 0;
    StoreFields(image, kRow, LoadFields(image, kRow));
    EXPECT_EQ(words(), "SCRT 1000Hz");
    ASSERT_EQ(ParseCsv("RQ-M5,MEMORY,0,145.5,FM,9KHz,OFF,0,JR,67.0Hz,OFF,0,,,", image).rows, 1);
    EXPECT_EQ(words(), "OFF JR");
}

TEST(CellText, AnEditedEmptyRowStaysBlankInWhatTheRegionLacks)
{
    const std::tuple<int, const char*, const char*> cases[] = {
        {0, "", "300Hz"}, {1, "0", ""}, {2, "", ""}, {3, "", ""}};
    for (const auto& [region, secret, carrier] : cases) {
        CloneImage image;
        image.Settings().model = region;
        ChannelFields fields = LoadFields(image, {Memory, 4});
        EXPECT_EQ(fields.frequency + fields.shiftFrequency, "") << "an empty row is all blank";
        fields.frequency = "145.5";
        StoreFields(image, {Memory, 4}, fields);
        EXPECT_EQ(TextsOf(image.MemData(4)), (Texts{"145.500000", "FM", "9KHz", "OFF", secret, carrier,
                                                    "67.0Hz", "OFF", "0.000000", ""}));
    }
}

}  // namespace
}  // namespace rqm5
