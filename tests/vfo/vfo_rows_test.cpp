#include <gtest/gtest.h>

#include <tuple>

#include "memory/start_image.h"
#include "vfo/vfo_cells.h"

namespace rqm5 {
namespace {

TEST(VfoDefaults, DifferByRegion)
{
    const std::tuple<int, std::size_t, const char*, const char*, const char*, const char*> cases[] = {
        // clang-format off
        {0, 0, "0.100000", "AM", "1KHz", "0.250000"}, {1, 4, "76.100000", "WFM", "100KHz", "1.000000"},
        {0, 6, "145.000000", "FM", "20KHz", "0.600000"}, {1, 6, "145.000000", "FM", "12.5KHz", "0.600000"},
        {3, 6, "400.000000", "FM", "10KHz", "5.000000"}, {0, 10, "433.000000", "FM", "20KHz", "16.500000"},
        {2, 10, "433.000000", "FM", "12.5KHz", "16.500000"}, {3, 13, "1295.000000", "FM", "20KHz", "20.000000"},
        // clang-format on
    };
    for (const auto& [region, row, frequency, mode, step, shift] : cases)
        EXPECT_EQ(StartUpImage(region).VFOText[row],
                  (ChannelTexts{frequency, mode, step, "OFF", "8", "JR", "88.5Hz", "OFF", shift, ""}))
            << region << ", " << row;
}

TEST(VfoCells, RegionHidesWhatItDoesNotHave)
{
    CloneImage image = StartUpImage(0);
    const std::tuple<int, int, std::size_t, const char*> cases[] = {
        // clang-format off
        {0, 13, kSecret, "-"}, {0, 13, kCarrier, "JR"}, {1, 13, kSecret, "8"}, {1, 0, kCarrier, "-"},
        {2, 7, kSecret, "-"}, {3, 7, kCarrier, "-"}, {2, 7, kMode, "WFM"}, {2, 8, kFrequency, "-"},
        {3, 13, kNote, "-"}, {4, 8, kMode, "-"},
        // clang-format on
    };
    for (const auto& [region, row, column, text] : cases) {
        image.Settings.model = region;
        EXPECT_EQ(VfoCell(image, row, column), text) << region << ", " << row << ", " << column;
    }
    image.Settings.model = 0;
    EXPECT_EQ(VfoCell(image, 8, kFrequency), "270.000000") << "stored rows must survive a region change";
}

}  // namespace
}  // namespace rqm5
