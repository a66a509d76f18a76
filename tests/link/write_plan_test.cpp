#include "link/write_plan.h"

#include <gtest/gtest.h>

#include "link/receiver_checks.h"
#include "link/simulated_line.h"
#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

const std::string kDoubt = " (may hold its old or its new contents). ";
const std::string kRepeat = " Repeating the write completes it.";

TEST(WritePlan, TellsWhichBlocksWereSentAndWhichWereNot)
{
    const struct
    {
        TransferScope scope;
        int soundBlocks;
        const char* fault;
        std::string aftermath;
    } kCases[] = {
        {MemoryOf(kSelectSearchPass), 36, "ng:10",
         "Sent: bank sizes, bank links, enable flags, Search Pass list. Refused: Search Pass count" + kDoubt +
             "Not sent: rows 1100 to 1199." + kRepeat},
        {MemoryOf(kSelectPriority), 12, "garble:10",  // reads the flags that it must not change
         "Sent: bank sizes, bank links. Not sent: enable flags, rows 1200 to 1209." + kRepeat},
        {MemoryOf(kSelectPriority), 30, "ng:10",
         "Sent: bank sizes, bank links, enable flags, rows 1200 to 1201. Refused: row 1202" + kDoubt +
             "Not sent: rows 1203 to 1209." + kRepeat},
        {kSettingsOnly, 20, "ng:10",
         "Sent: settings, VFO bands, region presets 1 to 4. Refused: region preset 5" + kDoubt +
             "Not sent: region presets 6 to 68." + kRepeat},
        {kEverything, 3, "ng:10",
         "Sent: settings, VFO band 0. Refused: VFO band 1" + kDoubt +
             "Not sent: VFO bands 2 to 13, region presets, bank sizes, bank links, enable flags, "
             "Search Pass list, Search Pass count, rows 0 to 1209." +
             kRepeat},
    };
    for (const auto& test : kCases) {
        SimulatedLine line(DemoImage(0));
        line.image = DemoImage(0);
        line.SpoilAfter(test.soundBlocks, test.fault, std::chrono::milliseconds(20));
        EXPECT_EQ(line.Write(test.scope), TransferResult::Failed);
        ASSERT_EQ(line.observer.problems.size(), 1U);
        EXPECT_EQ(line.observer.problems[0].aftermath, test.aftermath);
    }
}

TEST(WritePlan, NothingIsInDoubtWhereThePortNeverOpened)
{
    QtSerialPort port(QStringLiteral("/no such port"));
    RadioLink link(port);
    RecordingObserver observer;
    ReceiverWriter writer(DemoImage(0), kBanksOnly, link, observer);
    EXPECT_EQ(writer.Write(), TransferResult::Failed);
    EXPECT_FALSE(writer.Plan().HasBegun());
    EXPECT_EQ(writer.Plan().Summary(), "Sent: nothing. Not sent: bank sizes, bank links." + kRepeat);
}

TEST(WritePlan, ABlockThatACancelMetIsInDoubt)
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
    ReceiverWriter writer(line.image, kBanksOnly, line.link, line.observer);
    EXPECT_EQ(writer.Write(), TransferResult::Cancelled);
    EXPECT_TRUE(writer.Plan().HasBegun());
    EXPECT_EQ(writer.Plan().Summary(), "Sent: bank sizes 1 to 2. Without an answer: bank size block 3" +
                                           kDoubt + "Not sent: bank sizes 4 to 7, bank links." + kRepeat);
}

TEST(ExpectedMemory, IgnoresOnlyTheFlagsOfOtherRows)
{
    const CloneImage image = DemoImage(0);
    const auto expected = ExpectedAfterWrite(image, MemoryOf(kSelectPriority));
    const auto isFlags = [](const ExpectedBlock& block) { return block.address == 0x0250; };
    const auto block = std::find_if(expected.begin(), expected.end(), isFlags);
    MemoryBlock flags = MemoryFromImage(image).At(0x0250);  // rows 1152 to 1279; row 1200 is bit 48
    flags.SetByte(5, flags.Byte(5) ^ 0x01);                 // row 1199
    EXPECT_TRUE(Agrees(*block, flags));
    flags.SetByte(6, flags.Byte(6) ^ 0x80);  // row 1200
    EXPECT_FALSE(Agrees(*block, flags));
    // What is no digit would read as 0.
    const MemoryBlock unreadable(std::string(kBlockChars, '?'));
    EXPECT_FALSE(Agrees({0, MemoryBlock(), MemoryBlock("01"), ""}, unreadable));
    EXPECT_TRUE(Agrees({0, MemoryBlock(), MemoryBlock(), ""}, unreadable));
}

TEST(Backup, WrittenBackMakesTheReceiverWhatItWas)
{
    // A write, whether it divides the channels otherwise, and the selector of the one that brings them back.
    const std::tuple<TransferScope, bool, int> kCases[] = {
        {kEverything, true, kSelectAll}, {kSettingsOnly, false, kSelectAll},
        {kBanksOnly, true, kSelectAll},  {MemoryOf(1), false, 1},
        {MemoryOf(1), true, kSelectAll}, {MemoryOf(kSelectSearchPass), true, kSelectSearchPass}};
    for (const auto& [scope, movesBanks, restoredWith] : kCases) {
        // An image from a receiver holds what a write leaves there.
        const CloneImage held = ImageFromMemory(MemoryFromImage(DemoImage(0)), {});
        SimulatedLine line(held);
        const ReceiverMemory before = line.receiver.Memory();
        line.image = held;
        line.image.Settings().volume = 3;
        line.image.SetBankSize(0, held.BankSize(0) + (movesBanks ? 10 : 0));
        for (int row = 40; row < 130; ++row)
            ClearMemoryRow(line.image, row);
        CloneImage backup;
        ASSERT_EQ(ReadBackup(line.image, scope, line.link, line.observer, backup), TransferResult::Done);
        EXPECT_TRUE(line.observer.stores == 0 && line.observer.groups.empty());
        ASSERT_EQ(line.Write(scope), TransferResult::Done);
        EXPECT_NE(line.receiver.Memory(), before);

        TransferScope back = scope;
        back.selector = restoredWith;
        line.image = backup;
        ASSERT_EQ(line.Write(back), TransferResult::Done);
        ReceiverMemory after = line.receiver.Memory();
        // A write of the settings alone never leaves a right count of Search Pass channels.
        if (!scope.memory)
            after.At(0x0050).SetByte(2, before.At(0x0050).Byte(2));
        EXPECT_EQ(after, before) << scope.selector << movesBanks;
    }
}

}  // namespace
}  // namespace rqm5
