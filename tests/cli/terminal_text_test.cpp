#include <gtest/gtest.h>

#include <sstream>

#include "cli/progress_bar.h"

namespace rqm5 {
namespace {

using std::chrono::seconds;

TEST(ProgressLine, ShowsRowPercentageAndTimeInTheRoomThereIs)
{
    EXPECT_EQ(ProgressLine(605, 1210, 604, seconds(84), 79),
              "[####################....................]  50 %  row  604  1:24 left");
    EXPECT_EQ(ProgressLine(1, 4, -1, seconds(9), 30), "[##.........]  25 %  0:09 left");
    EXPECT_EQ(ProgressLine(1, 4, -1, std::nullopt, 30), "[#####.................]  25 %");
    EXPECT_EQ(ProgressLine(9, 4, -1, seconds(0), 8), "100 %  0");
    EXPECT_EQ(ProgressLine(0, 0, -1, seconds(0), 0), "");

    std::ostringstream out, err;
    Console console{out, err, 80};
    ProgressBar bar(console);
    bar.Begin(1000);  // estimated from a file with larger banks
    bar.ProgressStarted(0);
    bar.ProgressMoved(0, 7);
    bar.BlockDone(0x1070, false);
    EXPECT_NE(err.str().find("100 %  row    7"), std::string::npos) << err.str();
}

}  // namespace
}  // namespace rqm5
