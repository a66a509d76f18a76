#include "simulator/simulated_receiver.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <array>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <semaphore>

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

/// The echo of a read command and the pieces of its reply, as a fault leaves them.
std::string HeardWith(std::string_view fault, unsigned seed = 1)
{
    ReceiverMemory memory;
    memory.At(0x1230) = MemoryBlock(kBlock);
    SimulatedReceiver receiver(memory, FaultPlan({ParseFault(fault).value()}, seed));
    const Answer answer = receiver.Receive("QT~F1230R\r").at(0);
    std::string text = answer.echo;
    for (const ReplyPiece& piece : answer.reply)
        text += "|" + piece.text;
    return text;
}

TEST(SimulatedReceiver, SpoilsWhatTheFaultNames)
{
    const std::string echo = "QT~F1230R\r";
    const std::string frame = "\r\n" + kBlock + "\r\n";
    const std::pair<const char*, std::string> kCases[] = {
        {"drop:0", echo + "|" + frame},
        {"no-echo", "|" + frame},
        {"drop", echo},
        {"silent", ""},
        {"cut", echo + "|" + frame.substr(0, 18)},
        {"garble", echo + "|~\x7F" + frame.substr(2)},
        {"ng", echo + "|\r\nNG\r\n"},
        {"pieces", echo + "|" + frame.substr(0, 12) + "|" + frame.substr(12, 12) + "|" + frame.substr(24)}};
    for (const auto& [fault, heard] : kCases)
        EXPECT_EQ(HeardWith(fault), heard) << fault;
    const std::string sound = kCases[0].second;
    for (unsigned seed = 1; seed <= 64; ++seed)
        for (const std::string fault : {"flip", "smear"}) {
            const std::string heard = HeardWith(fault, seed);
            ASSERT_EQ(heard.size(), sound.size());
            EXPECT_EQ(std::inner_product(heard.begin(), heard.end(), sound.begin(), 0, std::plus(),
                                         std::not_equal_to()),
                      1);
            EXPECT_EQ(heard.find('?') != heard.npos, fault == "smear");
        }
}

TEST(FaultPlan, StrikesByCountByProbabilityAndAfterGoodCommands)
{
    EXPECT_EQ(FaultsOf("drop", 1), "X" + std::string(39, '.'));
    EXPECT_EQ(FaultsOf("ng:3:after=2", 1), "..XXX" + std::string(35, '.'));
    EXPECT_EQ(FaultsOf("cut:after=39:100%", 1), ".......................................X");
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

TEST(SimSession, TakesAwayNoLinkAndNoFileButItsOwn)
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(QStringLiteral("rx"));
    const SimOptions options{.link = link.toStdString()};
    {
        SimSession first(options);
        SimSession second(options);
        first.Stop();
        EXPECT_EQ(QFileInfo(link).symLinkTarget(), second.Terminal());
    }
    EXPECT_FALSE(QFileInfo(link).isSymLink());
    std::ofstream(options.link) << "somebody's";
    EXPECT_EQ(SimSession(options).Error(), options.link + " exists and is not a link");
    EXPECT_EQ(QFileInfo(link).size(), 10);
}

/// The device, for a program that sets nothing about it.
struct PlainDevice
{
    explicit PlainDevice(const SimSession& session)
        : descriptor(open(session.Terminal().toLocal8Bit().constData(), O_RDWR | O_NOCTTY))
    {
    }
    ~PlainDevice() { close(descriptor); }
    PlainDevice(const PlainDevice&) = delete;
    PlainDevice& operator=(const PlainDevice&) = delete;

    void Command() const { EXPECT_EQ(write(descriptor, "QT~F0040R\r", 10), 10); }

    const int descriptor;
};

TEST(SimSession, GivesEachCharacterAsItIs)
{
    const SimSession session;
    const PlainDevice device(session);
    device.Command();
    const std::string expected = "QT~F0040R\r\r\n" + std::string(32, 'F') + "\r\n";
    std::string heard;
    std::array<char, 64> part{};
    while (heard.size() < expected.size()) {
        const ssize_t length = read(device.descriptor, part.data(), part.size());
        ASSERT_GT(length, 0);
        heard.append(part.data(), static_cast<std::size_t>(length));
    }
    EXPECT_EQ(heard, expected);
}

TEST(SimSession, HearsNothingBeforeALateReplyIsOut)
{
    std::binary_semaphore heard(0);
    SimSession session({.faults = {{.kind = FaultKind::Late}},
                        .lateDelay = std::chrono::hours(1),
                        .onCommand = [&](const std::string&) { heard.release(); }});
    const PlainDevice device(session);
    device.Command();
    heard.acquire();
    device.Command();
    session.HangUp();  // looks at the line once more before it does so
    EXPECT_EQ(session.CommandLog().size(), 1U);
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
    // The next one waits for the line, and then for the receiver.
    pacer.Add({{}, 0, {}, {{std::chrono::milliseconds(0), "s"}}, std::chrono::milliseconds(3)}, start);
    EXPECT_EQ(pacer.TakeDue(start + microseconds(34041)), "");
    EXPECT_EQ(pacer.TakeDue(start + microseconds(34042)), "s");
}

}  // namespace
}  // namespace rqm5
