#include <gtest/gtest.h>

#include "reliability/stall_cases.h"

namespace rqm5 {
namespace {

using namespace std::chrono_literals;

constexpr auto kTimeOut = 100ms;
constexpr int kPace = 48000;  ///< 9600 baud for a time-out that is as much shorter
constexpr std::size_t kAtOnce = 24;
constexpr int kCommands = 28;  ///< of a read

void ExpectExact(std::vector<StallCase> stalls)
{
    RunStalls(stalls, kAtOnce);
    for (const StallCase& stall : stalls)
        EXPECT_EQ(stall.fault, "") << stall.Name();
}

class Stalls : public testing::TestWithParam<std::tuple<bool, int>>
{
};

TEST_P(Stalls, OfAnyLengthLeaveEveryBlockRight)
{
    const bool writes = std::get<0>(GetParam());
    const int baud = std::get<1>(GetParam());
    std::vector<StallCase> stalls;
    int after = 0;
    const auto add = [&](int percent) {
        stalls.push_back({writes, baud, kTimeOut, kTimeOut * percent / 100, ++after % kCommands});
    };
    for (int percent = 88; percent <= 122; ++percent)
        add(percent);
    for (int percent = 130; percent <= 600; percent += 22)
        add(percent);
    ExpectExact(stalls);
}

// The second stop strikes when the replies to the first are thought to be through: only counting finds out.
TEST_P(Stalls, ThatFollowEachOtherLeaveEveryBlockRight)
{
    const bool writes = std::get<0>(GetParam());
    const int baud = std::get<1>(GetParam());
    std::vector<StallCase> stalls;
    for (int count = 2; count <= 4; ++count)
        for (const int percent : {110, 125, 160})
            for (const int after : {0, 9, 20, kCommands - 1})
                stalls.push_back({writes, baud, kTimeOut, kTimeOut * percent / 100, after, count});
    ExpectExact(stalls);
}

INSTANTIATE_TEST_SUITE_P(, Stalls, testing::Combine(testing::Bool(), testing::Values(0, kPace)),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param) ? "Write" : "Read") +
                                    (std::get<1>(test.param) > 0 ? "Paced" : "");
                         });

}  // namespace
}  // namespace rqm5
