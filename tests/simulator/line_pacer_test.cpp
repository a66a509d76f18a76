#include "simulator/line_pacer.h"

#include <gtest/gtest.h>

namespace rqm5 {
namespace {

using namespace std::chrono_literals;
using Clock = LinePacer::Clock;

/// Takes everything that the pacer hands over, when it is due. \return the time of the last character
Clock::time_point Drain(LinePacer& pacer, std::string& text)
{
    Clock::time_point last{};
    while (const auto due = pacer.NextDue()) {
        EXPECT_EQ(pacer.TakeDue(*due - 1ns), "");
        text += pacer.TakeDue(*due);
        last = *due;
    }
    return last;
}

TEST(LinePacer, AnAnswerTakesTheTimeOfItsCharactersAndItsPauses)
{
    const Clock::time_point start(1h);
    // 10 characters out and 36 back, or 42 out and 6 back: the echo takes no time of its own.
    const std::pair<std::string, std::size_t> kCommands[] = {{"QT~F1000R\r", 46},
                                                             {"QT~F1000W" + std::string(32, '0') + "\r", 48}};
    for (const auto& [command, characters] : kCommands) {
        LinePacer pacer(9600);
        for (const Answer& answer : SimulatedReceiver(ReceiverMemory()).Receive(command))
            pacer.Add(answer, start);
        std::string text;
        EXPECT_EQ(Drain(pacer, text) - start, 1'000'000'000ns * 10 / 9600 * characters);
        EXPECT_EQ(text.size(), characters);
    }
    LinePacer pacer(1000);  // 10 ms a character
    pacer.Add({"", 2, "ab", {{0ms, "cd"}}}, start);
    pacer.Add({"", 1, "e", {{50ms, "f"}}}, start + 1ms);
    EXPECT_EQ(pacer.TakeDue(start + 20ms), "ab");
    std::string text;
    EXPECT_EQ(Drain(pacer, text) - start, 40ms + 10ms + 50ms + 10ms);
    EXPECT_EQ(text, "cdef");
}

}  // namespace
}  // namespace rqm5
