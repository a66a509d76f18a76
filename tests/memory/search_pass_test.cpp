#include "memory/search_pass.h"

#include <gtest/gtest.h>

namespace rqm5 {
namespace {

TEST(SearchPass, BlocksListTheEnabledRowsThenFill)
{
    CloneImage image;
    BuildPassData(image);
    EXPECT_EQ(image.PassData[6].Text(), std::string(32, 'F'));
    image.MemEnable[1099] = image.MemEnable[1200] = true;
    image.MemEnable[1100] = image.MemEnable[1110] = image.MemEnable[1199] = true;
    BuildPassData(image);
    EXPECT_EQ(image.PassData[0].Text(), "000A63" + std::string(26, 'F'));
    EXPECT_EQ(SearchPassCount(image), 3);

    for (std::size_t row = 1100; row < 1200; ++row)
        image.MemEnable[row] = true;
    BuildPassData(image);
    EXPECT_EQ(image.PassData[1].Text().substr(0, 4), "1011");
    EXPECT_EQ(image.PassData[6].Text(), "60616263" + std::string(24, 'F'));
    EXPECT_EQ(SearchPassCount(image), 100);
}

}  // namespace
}  // namespace rqm5
