#include "image/value_tables.h"

#include <gtest/gtest.h>

#include "image/number_text.h"

namespace rqm5 {
namespace {

TEST(ValueTables, LimitsAreTheNumbersOfTheTextsButForThreeRows)
{
    for (std::size_t i = 0; i < BandLimit.size(); ++i) {
        const std::string text(BandRangeText[i]);
        const std::size_t region = i % kRegions;
        const std::size_t band = i / kRegions;
        if (text.empty()) {
            const bool isBlocked = region == 2 && (band == 8 || band == 9);
            EXPECT_EQ(BandLimit[i].high != 0, isBlocked) << i;
            continue;
        }
        const double low = ReadNumber(text.substr(1));
        EXPECT_DOUBLE_EQ(BandLimit[i].low, region >= 2 && band == 2 ? 29.0 : low) << i;
        EXPECT_DOUBLE_EQ(BandLimit[i].high, ReadNumber(text.substr(text.find('-') + 1))) << i;
    }
}

}  // namespace
}  // namespace rqm5
