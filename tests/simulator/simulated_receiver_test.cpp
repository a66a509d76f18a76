#include "simulator/simulated_receiver.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "simulator/line_pacer.h"
#include "simulator/sim_session.h"

namespace rqm5 {
namespace {

const std::string kBlock = "00112233445566778899AABBCCDDEEFF";

std::string Replies(const std::vector<Answer>& answers)
{
    std::string text;
    for (const Answer& answer : answers)
        for (const ReplyPiece& piece : answer.reply)
            text += piece.text;
    return text;
}

std::string FaultsOf(const std::string& description, unsigned seed)
{
    FaultPlan plan({ParseFault(description).value()}, seed);
    std::string strikes;
    for (int i = 0; i < 40; ++i)
        strikes += plan.Next() == FaultKind::None ? '.' : 'X';
    return strikes;
}

TEST(SimulatedReceiver, ObeysCommandsAndPassesOverEverythingElse)
{
    const std::string frame = "\r\n" + kBlock + "\r\n";
    // clang-format off
    const std::pair<std::string, std::string> kCases[] = {
        {"QT~F1230R\r", frame},
        {"QT~F1234R\r", frame},  // the block that holds the byte
        {"noise\xFF QT~F1230R\r", frame}, {"QT~F00QT~F1230R\r", frame}, {"QT~F12\rQT~F1230R\r", frame},
        {std::string(5000, 'x') + "QT~F1230R\r", frame},
        {"QT~F1230R\rQT~F0040R\r", frame + "\r\n" + std::string(32, 'F') + "\r\n"},
        {"QT~F1230W" + kBlock + "\r", "\r\nOK\r\n"}, {"QT~F1230W" + kBlock + "0\r", ""},
        {"QT~F123OR\r", ""}, {"QT~F1230X\r", ""}, {"QT~F1230R", ""}, {"\r\r\r", ""},
    };
    // clang-format on
    for (const auto& [received, reply] : kCases) {
        ReceiverMemory memory;
        memory.At(0x1230) = MemoryBlock(kBlock);
        SimulatedReceiver whole(memory);
        EXPECT_EQ(Replies(whole.Receive(received)), reply) << received;
        SimulatedReceiver bit(memory);
        std::string replies;
        for (const char c : received)
            replies += Replies(bit.Receive(std::string(1, c)));
        EXPECT_EQ(replies, reply) << received;
    }
    SimulatedReceiver receiver{ReceiverMemory()};
    const std::string write = "junk QT~FFFF0W" + kBlock + "\r";
    EXPECT_EQ(receiver.Receive(write).at(0).echo, write);
    EXPECT_EQ(receiver.Memory().At(0xFFF0).String(), kBlock);
}

TEST(FaultPlan, StrikesByCountByProbabilityAndAfterGoodCommands)
{
    EXPECT_EQ(FaultsOf("drop", 1), "X" + std::string(39, '.'));
    EXPECT_EQ(FaultsOf("ng:3:after=2", 1), "..XXX" + std::string(35, '.'));
    EXPECT_EQ(FaultsOf("cut:after=39:100%", 1), std::string(39, '.') + "X");
    EXPECT_EQ(FaultsOf("noise:0.0", 1), std::string(40, '.'));
    const std::string half = FaultsOf("late:0.5", 7);
    EXPECT_EQ(half, FaultsOf("late:50%", 7));
    for (const char* text : {"", "dropp", "drop:", "drop:x", "drop:-1", "drop:1.5", "drop:101%", "drop:3x",
                             "drop:after=", "drop:after=-2", "drop:1:"})
        EXPECT_FALSE(ParseFault(text)) << text;
}

TEST(SimSession, LeavesNothingOpen)
{
    const auto open = [] {
        return std::distance(begin(std::filesystem::directory_iterator("/proc/self/fd")), {});
    };
    const auto before = open();
    SimSession(SimOptions{}).Stop();
    EXPECT_EQ(open(), before);
}

TEST(LinePacer, ACharacterTakesTenBits)
{
    using std::chrono::microseconds;
    LinePacer pacer(9600);
    const LinePacer::Clock::time_point start{};
    const Answer answer{{}, 16, std::string(16, 'e'), {{std::chrono::milliseconds(5), "rrrrrrrr"}}};
    pacer.Add(answer, start);
    EXPECT_EQ(pacer.TakeDue(start + microseconds(16666)), "");
    EXPECT_EQ(pacer.TakeDue(start + microseconds(16667)), answer.echo);
    EXPECT_EQ(pacer.TakeDue(start + microseconds(29999)), "");
    EXPECT_EQ(pacer.TakeDue(start + microseconds(30000)), "rrrrrrrr");
}

}  // namespace
}  // namespace rqm5
