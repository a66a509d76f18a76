#include <gtest/gtest.h>

#include <tuple>

#include "image/row_texts.h"
#include "memory/start_image.h"
#include "vfo/vfo_cells.h"

namespace rqm5 {
namespace {

TEST(VfoDefaults, DifferByRegion)
{
    // Frequency, mode, step and shift frequency of each row, in regions 0 and 1 and in regions 2 and 3.
    const std::pair<std::string, std::string> rows[kVfoRows] = {
        {"0.100000 AM 1KHz 0.250000", "0.100000 AM 1KHz 0.250000"},
        {"0.531000 AM 9KHz 1.000000", "0.530000 AM 10KHz 1.000000"},
        {"1.625000 AM 5KHz 1.000000", "29.000000 FM 10KHz 1.000000"},
        {"51.000000 FM 5KHz 1.000000", "59.750000 WFM 10KHz 1.000000"},
        {"76.100000 WFM 100KHz 1.000000", "145.000000 FM 10KHz 0.600000"},
        {"118.000000 AM 25KHz 1.000000", "216.000000 FM 10KHz 9.000000"},
        {"145.000000 FM (region) 0.600000", "400.000000 FM 10KHz 5.000000"},
        {"175.750000 WFM 12.5KHz 6.000000", "960.000000 FM 10KHz 20.000000"},
        {"270.000000 AM 12.5KHz 9.000000", "270.000000 AM 12.5KHz 9.000000"},
        {"380.000000 FM 12.5KHz 16.500000", "380.000000 FM 12.5KHz 16.500000"},
        {"433.000000 FM (region) 16.500000", "433.000000 FM 12.5KHz 16.500000"},
        {"475.750000 WFM 50KHz 6.000000", "475.750000 WFM 50KHz 6.000000"},
        {"806.000000 WFM 20KHz 55.000000", "806.000000 WFM 20KHz 55.000000"},
        {"1295.000000 FM 20KHz 20.000000", "1295.000000 FM 20KHz 20.000000"},
    };
    for (int region = 0; region < kRegions; ++region) {
        const CloneImage image = StartUpImage(region);
        for (int row = 0; row < kVfoRows; ++row) {
            std::string expected = region < 2 ? rows[row].first : rows[row].second;
            if (const auto at = expected.find("(region)"); at != std::string::npos)
                expected.replace(at, 8, region == 0 ? "20KHz" : "12.5KHz");
            auto texts = TextsOf(image.VFOData(row), RowKind::Vfo);
            EXPECT_EQ(
                texts[kFrequency] + " " + texts[kMode] + " " + texts[kStep] + " " + texts[kShiftFrequency],
                expected)
                << region << ", " << row;
            texts.erase(texts.begin(), texts.begin() + kOption);
            EXPECT_EQ(texts, (std::vector<std::string>{"OFF", "8", "JR", "88.5Hz", "OFF", texts[5], ""}));
        }
    }
}

TEST(VfoCells, RegionHidesTheBandsAndColumnsThatItLacks)
{
    CloneImage image = StartUpImage(0);
    const std::tuple<int, int, Column, const char*> cases[] = {
        {0, 13, kSecret, "-"},   {0, 13, kCarrier, "JR"}, {1, 13, kSecret, "8"}, {2, 7, kMode, "WFM"},
        {2, 8, kFrequency, "-"}, {3, 13, kNote, "-"},     {4, 8, kMode, "-"}};
    for (const auto& [region, row, column, text] : cases) {
        image.Settings().model = region;
        EXPECT_EQ(VfoCell(image, row, column), text) << region << ", " << row << ", " << column;
    }
    image.Settings().model = 0;
    EXPECT_EQ(VfoCell(image, 8, kFrequency), "270.000000") << "stored rows must survive a region change";
}

}  // namespace
}  // namespace rqm5
