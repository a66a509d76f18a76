#include "link/write_record.h"

#include <gtest/gtest.h>

#include <functional>

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

TEST(WriteRecord, ThePlanIsWhatAWriteDoes)
{
    for (const TransferScope& scope : {kEverything, kSettingsOnly, kBanksOnly, Memory(0), Memory(20),
                                       Memory(49), Memory(kSelectSearchPass), Memory(kSelectPriority)}) {
        SimulatedLine line(DemoImage(0));
        line.image = DemoImage(1);
        WriteRecord record(line.image, scope, line.observer);
        ReceiverWriter writer(line.image, line.link, record);
        ASSERT_EQ(WriteScope(writer, scope), TransferResult::Done);
        EXPECT_EQ(record.Summary().find("Not sent"), std::string::npos) << record.Summary();
        std::vector<int> planned;
        for (const WriteSection& section : PlanWrite(line.image, scope))
            planned.insert(planned.end(), section.addresses.begin(), section.addresses.end());
        EXPECT_EQ(planned, line.observer.done) << scope.selector;
    }
}

TEST(WriteRecord, TellsWhichBlocksWereSentAndWhichWereNot)
{
    const struct
    {
        TransferScope scope;
        const char* fault;
        std::vector<const char*> aftermaths;  ///< of each message
    } kCases[] = {
        {Memory(kSelectPriority),
         "ng:10:after=31",
         {"Sent: bank sizes, bank links, enable flags, rows 1200 to 1202. Refused: row 1203 (may hold its "
          "old "
          "or its new contents). Not sent: rows 1204 to 1209. Repeating the write completes it."}},
        {Memory(kSelectSearchPass),
         "ng:10:after=36",
         {"Sent: bank sizes, bank links, enable flags, Search Pass list. Refused: Search Pass count (may "
          "hold "
          "its old or its new contents). Not sent: rows 1100 to 1199. Repeating the write completes it."}},
        {Memory(kSelectPriority),
         "garble:10:after=12",  // reads the flags that it must not change
         {"Sent: bank sizes, bank links. Not sent: enable flags, rows 1200 to 1209. Repeating the write "
          "completes it."}},
        {kSettingsOnly,
         "ng:10",
         {"Sent: nothing. Refused: settings block 1 (may hold its old or its new contents). Not sent: "
          "settings "
          "block 2, VFO bands, region presets. Repeating the write completes it."}},
        {kBanksOnly,
         "ng:10:after=2",
         {"Sent: bank sizes 1 to 2. Refused: bank size block 3 (may hold its old or its new contents). Not "
          "sent: "
          "bank sizes 4 to 7, bank links. Repeating the write completes it."}},
        {kEverything,
         "ng:20:after=3",
         {"Sent: settings, VFO band 0. Refused: VFO band 1 (may hold its old or its new contents). Not sent: "
          "VFO "
          "bands 2 to 13, region presets. Repeating the write completes it. The memory is written next.",
          "Sent: settings, VFO band 0. Refused: VFO band 1, bank size block 1 (may hold its old or its new "
          "contents). Not sent: VFO bands 2 to 13, region presets, bank sizes 2 to 7, bank links, enable "
          "flags, "
          "Search Pass list, Search Pass count, rows 0 to 1209. Repeating the write completes it."}},
    };
    for (const auto& test : kCases) {
        SimulatedLine line(DemoImage(0));
        line.image = DemoImage(0);
        line.Spoil(test.fault, std::chrono::milliseconds(20));
        WriteRecord record(line.image, test.scope, line.observer);
        ReceiverWriter writer(line.image, line.link, record);
        EXPECT_EQ(WriteScope(writer, test.scope), TransferResult::Failed);
        ASSERT_EQ(line.observer.problems.size(), test.aftermaths.size());
        for (std::size_t i = 0; i < test.aftermaths.size(); ++i)
            EXPECT_EQ(line.observer.problems[i].aftermath, test.aftermaths[i]);
    }
}

TEST(WriteRecord, ABlockThatACancelMetIsInDoubt)
{
    std::function<void()> isHeard;  // by the receiver's own thread
    SimulatedLine line(DemoImage(0), {.onCommand = [&](const std::string& command) {
                           if (isHeard && command.starts_with("QT~F00E0W"))
                               isHeard();
                       }});
    line.image = DemoImage(0);
    line.observer.cancelAfter = 4;
    WriteRecord between(line.image, kBanksOnly, line.observer);
    EXPECT_EQ(ReceiverWriter(line.image, line.link, between).WriteBankPage(), TransferResult::Cancelled);
    EXPECT_EQ(
        between.Summary(),
        "Sent: bank sizes 1 to 4. Not sent: bank sizes 5 to 7, bank links. Repeating the write completes "
        "it.");

    line.observer.cancelAfter = -1;
    isHeard = [&] {
        QMetaObject::invokeMethod(&line.link, [&] {
            line.observer.cancelled = true;
            line.link.Cancel();
        });
    };
    line.Spoil("drop:1:after=2", std::chrono::seconds(60));
    WriteRecord within(line.image, kBanksOnly, line.observer);
    EXPECT_EQ(ReceiverWriter(line.image, line.link, within).WriteBankPage(), TransferResult::Cancelled);
    EXPECT_EQ(within.Summary(),
              "Sent: bank sizes 1 to 2. Without an answer: bank size block 3 (may hold its old or its new "
              "contents). "
              "Not sent: bank sizes 4 to 7, bank links. Repeating the write completes it.");
}

TEST(Backup, WrittenBackMakesTheReceiverWhatItWas)
{
    struct
    {
        TransferScope scope;
        bool movesBanks;   ///< the write divides the channels otherwise
        int restoredWith;  ///< selector of the write that brings it back
    } const kCases[] = {
        {kEverything, true, kSelectAll}, {kSettingsOnly, false, kSelectAll},
        {kBanksOnly, true, kSelectAll},  {Memory(1), false, 1},
        {Memory(1), true, kSelectAll},   {Memory(kSelectSearchPass), true, kSelectSearchPass}};
    for (const auto& test : kCases) {
        // An image from a receiver holds what a write leaves there.
        const CloneImage held = ImageFromMemory(MemoryFromImage(DemoImage(0)), {});
        SimulatedLine line(held);
        const ReceiverMemory before = line.receiver.Memory();
        line.image = held;
        line.image.Settings.volume = 3;
        line.image.BankSize[0] += test.movesBanks ? 10 : 0;
        for (int row = 40; row < 130; ++row)
            ClearMemoryRow(line.image, row);
        CloneImage backup;
        ASSERT_EQ(ReadBackup(line.image, test.scope, line.link, line.observer, backup), TransferResult::Done);
        EXPECT_TRUE(line.observer.refreshed.empty());
        ASSERT_EQ(WriteScope(line.writer, test.scope), TransferResult::Done);
        EXPECT_NE(line.receiver.Memory(), before);

        TransferScope back = test.scope;
        back.selector = test.restoredWith;
        ReceiverWriter writer(backup, line.link, line.observer);
        ASSERT_EQ(WriteScope(writer, back), TransferResult::Done);
        ReceiverMemory after = line.receiver.Memory();
        // A write of the settings alone never leaves a right count of Search Pass channels.
        if (!test.scope.memory)
            after.At(0x0050).SetByte(2, before.At(0x0050).Byte(2));
        EXPECT_EQ(after, before) << test.scope.selector << test.movesBanks;
    }
}

}  // namespace
}  // namespace rqm5
