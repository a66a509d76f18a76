#include "link/write_record.h"

#include <gtest/gtest.h>

#include "link/receiver_checks.h"
#include "link/simulated_line.h"
#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

constexpr TransferScope kEverything{};
constexpr TransferScope kSettingsOnly{.memory = false};
constexpr TransferScope kBanksOnly{.settings = false, .memory = false, .banks = true};

TransferScope Memory(int selector)
{
    return {.settings = false, .selector = selector};
}

const std::string kDoubt = " (may hold its old or its new contents). ";
const std::string kRepeat = " Repeating the write completes it.";

TEST(WriteRecord, TellsWhichBlocksWereSentAndWhichWereNot)
{
    const struct
    {
        TransferScope scope;
        const char* fault;
        std::vector<std::string> aftermaths;  ///< of each message
    } kCases[] = {
        {Memory(kSelectSearchPass),
         "ng:10:after=36",
         {"Sent: bank sizes, bank links, enable flags, Search Pass list. Refused: Search Pass count" +
          kDoubt + "Not sent: rows 1100 to 1199." + kRepeat}},
        {Memory(kSelectPriority),
         "garble:10:after=12",  // reads the flags that it must not change
         {"Sent: bank sizes, bank links. Not sent: enable flags, rows 1200 to 1209." + kRepeat}},
        {kEverything,
         "ng:20:after=3",
         {"Sent: settings, VFO band 0. Refused: VFO band 1" + kDoubt +
              "Not sent: VFO bands 2 to 13, region presets." + kRepeat + " The memory is written next.",
          "Sent: settings, VFO band 0. Refused: VFO band 1, bank size block 1" + kDoubt +
              "Not sent: VFO bands 2 to 13, region presets, bank sizes 2 to 7, bank links, enable flags, "
              "Search Pass list, Search Pass count, rows 0 to 1209." +
              kRepeat}},
    };
    for (const auto& test : kCases) {
        SimulatedLine line(DemoImage(0));
        line.image = DemoImage(0);
        line.Spoil(test.fault, std::chrono::milliseconds(20));
        WriteRecord record(line.image, test.scope, line.observer);
        ReceiverWriter writer(line.image, line.link, record);
        EXPECT_EQ(WriteScope(writer, test.scope), TransferResult::Failed);
        std::vector<std::string> aftermaths;
        for (const Problem& problem : line.observer.problems)
            aftermaths.push_back(problem.aftermath);
        EXPECT_EQ(aftermaths, test.aftermaths);
    }
}

TEST(WriteRecord, NothingIsInDoubtWhereThePortNeverOpened)
{
    CloneImage image = DemoImage(0);
    QtSerialPort port(QStringLiteral("/no such port"));
    RadioLink link(port);
    RecordingObserver observer;
    WriteRecord record(image, kBanksOnly, observer);
    EXPECT_EQ(ReceiverWriter(image, link, record).WriteBankPage(), TransferResult::Failed);
    EXPECT_FALSE(record.HasBegun());
    EXPECT_EQ(record.Summary(), "Sent: nothing. Not sent: bank sizes, bank links." + kRepeat);
}

TEST(WriteRecord, ABlockThatACancelMetIsInDoubt)
{
    const auto hear = [](SimulatedLine& line, const std::string& command) {
        // Heard by the receiver's own thread.
        if (command.starts_with("QT~F00E0W"))
            QMetaObject::invokeMethod(&line.link, [&line] {
                line.observer.cancelled = true;
                line.link.Cancel();
            });
    };
    SimulatedLine line(DemoImage(0), {.onCommand = [&](const std::string& heard) { hear(line, heard); }});
    line.image = DemoImage(0);
    line.Spoil("drop:1:after=2", std::chrono::seconds(60));
    WriteRecord record(line.image, kBanksOnly, line.observer);
    EXPECT_EQ(ReceiverWriter(line.image, line.link, record).WriteBankPage(), TransferResult::Cancelled);
    EXPECT_EQ(record.Summary(), "Sent: bank sizes 1 to 2. Without an answer: bank size block 3" + kDoubt +
                                    "Not sent: bank sizes 4 to 7, bank links." + kRepeat);
}

TEST(ExpectedMemory, IgnoresOnlyTheFlagsOfOtherRows)
{
    const CloneImage image = DemoImage(0);
    const auto expected = ExpectedAfterWrite(image, Memory(kSelectPriority));
    const auto isFlags = [](const ExpectedBlock& block) { return block.address == 0x0250; };
    const auto block = std::find_if(expected.begin(), expected.end(), isFlags);
    MemoryBlock flags = MemoryFromImage(image).At(0x0250);  // rows 1152 to 1279; row 1200 is bit 48
    flags.SetByte(5, flags.Byte(5) ^ 0x01);                 // row 1199
    EXPECT_TRUE(Agrees(*block, flags));
    flags.SetByte(6, flags.Byte(6) ^ 0x80);  // row 1200
    EXPECT_FALSE(Agrees(*block, flags));
}

TEST(Backup, WrittenBackMakesTheReceiverWhatItWas)
{
    // A write, whether it divides the channels otherwise, and the selector of the one that brings them back.
    const std::tuple<TransferScope, bool, int> kCases[] = {
        {kEverything, true, kSelectAll}, {kSettingsOnly, false, kSelectAll},
        {kBanksOnly, true, kSelectAll},  {Memory(1), false, 1},
        {Memory(1), true, kSelectAll},   {Memory(kSelectSearchPass), true, kSelectSearchPass}};
    for (const auto& [scope, movesBanks, restoredWith] : kCases) {
        // An image from a receiver holds what a write leaves there.
        const CloneImage held = ImageFromMemory(MemoryFromImage(DemoImage(0)), {});
        SimulatedLine line(held);
        const ReceiverMemory before = line.receiver.Memory();
        line.image = held;
        line.image.Settings.volume = 3;
        line.image.BankSize[0] += movesBanks ? 10 : 0;
        for (int row = 40; row < 130; ++row)
            ClearMemoryRow(line.image, row);
        CloneImage backup;
        ASSERT_EQ(ReadBackup(line.image, scope, line.link, line.observer, backup), TransferResult::Done);
        EXPECT_TRUE(line.observer.refreshed.empty());
        ASSERT_EQ(WriteScope(line.writer, scope), TransferResult::Done);
        EXPECT_NE(line.receiver.Memory(), before);

        TransferScope back = scope;
        back.selector = restoredWith;
        ReceiverWriter writer(backup, line.link, line.observer);
        ASSERT_EQ(WriteScope(writer, back), TransferResult::Done);
        ReceiverMemory after = line.receiver.Memory();
        // A write of the settings alone never leaves a right count of Search Pass channels.
        if (!scope.memory)
            after.At(0x0050).SetByte(2, before.At(0x0050).Byte(2));
        EXPECT_EQ(after, before) << scope.selector << movesBanks;
    }
}

}  // namespace
}  // namespace rqm5
