// A receiver that stops once for 440 ms to 3 s, keeps what comes in and then answers all of it in order:
// reads and writes of the Priority group with the real time-out, at 9600 baud and on a line that takes no
// time. Counts those that did not end with exact contents; there may be none.

#include <QCoreApplication>
#include <cstdio>
#include <map>

#include "reliability/stall_cases.h"

namespace rqm5 {
namespace {

constexpr int kShortest = 440;
constexpr int kLongest = 3000;
constexpr int kStep = 5;
constexpr std::size_t kAtOnce = 32;
constexpr int kCommands = 28;

std::vector<StallCase> Stalls(bool writes, int baud)
{
    std::vector<StallCase> stalls;
    for (int time = kShortest; time <= kLongest; time += kStep)
        stalls.push_back({.writes = writes,
                          .baud = baud,
                          .timeOut = RadioLink::kTimeOut,
                          .stall = std::chrono::milliseconds(time),
                          .after = time / kStep % kCommands});
    return stalls;
}

int Run(bool writes, int baud)
{
    std::vector<StallCase> stalls = Stalls(writes, baud);
    RunStalls(stalls, kAtOnce);
    int wrong = 0;
    int repeated = 0;
    for (const StallCase& stall : stalls) {
        repeated += stall.repeated > 0 ? 1 : 0;
        if (stall.fault.empty())
            continue;
        ++wrong;
        std::printf("%s: %s\n", stall.Name().c_str(), stall.fault.c_str());
    }
    std::printf("%-6s %8s %8zu %12d %8d\n", writes ? "write" : "read", baud > 0 ? "9600" : "no time",
                stalls.size(), repeated, wrong);
    std::fflush(stdout);
    return wrong;
}

}  // namespace
}  // namespace rqm5

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    std::printf("%-6s %8s %8s %12s %8s\n", "what", "line", "stalls", "repeated in", "wrong");
    int wrong = 0;
    for (const int baud : {9600, 0})
        for (const bool writes : {false, true})
            wrong += rqm5::Run(writes, baud);
    return wrong == 0 ? 0 : 1;
}
