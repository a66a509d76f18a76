#include <gtest/gtest.h>

#include <QTimer>
#include <algorithm>

#include "link/raw_read.h"
#include "link/receiver_checks.h"
#include "link/simulated_line.h"

namespace rqm5 {
namespace {

using namespace std::chrono_literals;

constexpr int kPriorityBlocks = 28;  ///< of a read of the Priority rows
const std::string kOdd = "01455000000000000000001000600Z00";

long Asked(const SimulatedLine& line, const std::string& address)
{
    const std::vector<std::string> log = line.receiver.CommandLog();
    return std::count(log.begin(), log.end(), "QT~F" + address + "R");
}

TEST(UnreadableBlocks, AreAskedForAgainAfterTheSequenceAndThenNamed)
{
    const ReceiverMemory good = MemoryFromImage(DemoImage(0));
    ReceiverMemory bad = good;
    const int kBad[] = {0x0120, 0x01C0, 0x5B10};  // they decide which rows are read, and which are on
    for (const int address : kBad)
        bad.At(address) = MemoryBlock(std::string(kBlockChars, 'g'));
    for (const bool mends : {true, false}) {
        SimulatedLine line(DemoImage(0));
        line.receiver.SetMemory(bad);
        for (int row = 0; row < kRadioRows; ++row)
            line.image.MemData(row).note = "note";
        CloneImage expected = line.image;
        SimulatedLine sound(DemoImage(0));
        ReceiverReader(expected, sound.link, sound.observer).ReadMemory(kSelectPriority);
        if (mends) {
            line.observer.changeAfter = kPriorityBlocks + 4;  // one round of asking again, and a block
            line.observer.afterBlock = [&] { line.receiver.SetMemory(good); };
        }
        EXPECT_EQ(line.reader.ReadMemory(kSelectPriority), TransferResult::Done);
        EXPECT_EQ(line.image == expected, mends);
        for (const int address : kBad)
            EXPECT_EQ(Asked(line, HexAddress(address)), mends && address != 0x01C0 ? 3 : 4);
        const std::vector<std::string> log = line.receiver.CommandLog();
        EXPECT_EQ(log.at(kPriorityBlocks - 1), "QT~F5B90R") << "the order of the blocks stays";
        const std::vector<Message> left = line.reader.Unreadable();
        EXPECT_EQ(left.size(), mends ? 0U : 3U);
        EXPECT_TRUE(mends || left.back() == "Row 1201 (Priority Pr1)") << left.back().English();
    }
}

TEST(UnreadableBlocks, AreNoBackup)
{
    SimulatedLine line(DemoImage(0));
    ReceiverMemory memory = line.receiver.Memory();
    memory.At(0x0C30) = MemoryBlock(kOdd);
    line.receiver.SetMemory(memory);
    CloneImage backup;
    EXPECT_EQ(ReadBackup(line.image, kSettingsOnly, line.link, line.observer, backup),
              TransferResult::Failed);
    ASSERT_EQ(line.observer.problems.size(), 1U);
    EXPECT_NE(line.observer.problems[0].details.English().find("VFO 3"), std::string::npos);
    EXPECT_EQ(line.observer.problems[0].aftermath, NothingWritten());
}

TEST(UnreadableBlocks, ThatAWriteMergesAreAskedForAgain)
{
    SimulatedLine line(DemoImage(0));
    const ReceiverMemory good = line.receiver.Memory();
    ReceiverMemory bad = good;
    bad.At(0x01C0) = MemoryBlock(std::string(kBlockChars, 'g'));
    line.receiver.SetMemory(bad);
    line.image = DemoImage(0);
    line.observer.changeAfter = 18;  // sizes, links and flags
    line.observer.afterBlock = [&] { line.receiver.SetMemory(good); };
    EXPECT_EQ(line.Write(MemoryOf(kSelectPriority)), TransferResult::Done);
    EXPECT_EQ(Asked(line, "01C0"), 2);
    EXPECT_EQ(line.receiver.Memory(), good);
}

TEST(BackReads, ForgiveADisturbedCharacterOnly)
{
    SimulatedLine line(DemoImage(0));
    const ReceiverMemory good = line.receiver.Memory();
    ReceiverMemory bad = good;
    // A byte that is 0 anyway, which is what an unreadable one reads as.
    bad.At(0x5B00) = MemoryBlock(good.At(0x5B00).String().replace(kBlockChars - 1, 1, "?"));
    bad.At(0x5B10).SetByte(1, 0x77);
    line.receiver.SetMemory(bad);
    line.image = DemoImage(0);
    std::vector<BlockDifference> differences;
    line.observer.afterBlock = [&] { line.receiver.SetMemory(good); };
    const auto expected = ExpectedAfterWrite(line.image, MemoryOf(kSelectPriority));
    line.observer.changeAfter = static_cast<int>(expected.size()) + 1;
    EXPECT_EQ(ReadBack(expected, line.link, line.observer, differences), TransferResult::Done);
    ASSERT_EQ(differences.size(), 1U);
    EXPECT_EQ(differences[0].expected.address, 0x5B10);
    EXPECT_EQ(Asked(line, "5B00"), 3);
}

// What an operation leaves open must not pass for a reply to the next one.
TEST(LateReplies, OfAnOperationThatBrokeOffAreNotThoseOfTheNext)
{
    for (const bool isRaw : {true, false}) {
        SimulatedLine line(DemoImage(0),
                           {.baud = 48000, .faults = {{.kind = FaultKind::Stall}}, .stallTime = 180ms});
        line.link.SetTimeOut(60ms);
        if (isRaw) {
            EXPECT_EQ(ReadRaw(line.link, 0x5B00).outcome, ReplyOutcome::Nothing);
        } else {
            QTimer::singleShot(20ms, &line.link, [&] {
                line.observer.cancelled = true;
                line.link.Cancel();
            });
            EXPECT_EQ(line.reader.ReadChannels({1200, 10}), TransferResult::Cancelled);
            line.observer.cancelled = false;
        }
        const CloneImage expected = ImageFromMemory(line.receiver.Memory(), {});
        EXPECT_EQ(line.reader.ReadSettings(), TransferResult::Done);
        for (int row = 0; row < kVfoRows; ++row)
            EXPECT_TRUE(line.image.VFOData(row) == expected.VFOData(row)) << row;
        EXPECT_FALSE(line.link.MayStillReply());
    }
}

TEST(LinkTest, TellsTheLowestMiddleAndHighestTimeOfGoodReplies)
{
    SimulatedLine line(DemoImage(0));
    line.Spoil("ng:2:after=1", 60ms);
    LinkTestResult result = TestLink(line.link, 0x0040, 6, [](int) { return true; });
    EXPECT_EQ(result.reads, 6);
    EXPECT_EQ(result.errors, 2);
    EXPECT_TRUE(result.lowest.count() > 0 && result.lowest <= result.median &&
                result.median <= result.highest);
    line.Spoil("pieces:3:after=2", RadioLink::kTimeOut);  // with pauses, which no machine can make shorter
    result = TestLink(line.link, 0x0040, 5, [](int) { return true; });
    EXPECT_GE(result.median, 30ms);
}

}  // namespace
}  // namespace rqm5
