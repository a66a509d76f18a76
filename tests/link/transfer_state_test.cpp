#include <gtest/gtest.h>

#include "link/simulated_line.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

using namespace std::chrono_literals;

constexpr int kTables = 18;          ///< blocks that a memory read transfers before its channels
constexpr int kSettingsBlocks = 16;  ///< blocks that a whole settings read transfers

TEST(MemoryRead, KeepsWhatCameBeforeAFailureOrACancelAndShowsItOnlyAfterACancel)
{
    for (const bool fails : {true, false}) {
        SimulatedLine line(DemoImage(0));
        if (fails)
            line.SilenceAfter(kTables + 2);
        else
            line.observer.cancelAfter = kTables + 2;
        line.image.MemText[1002][kFrequency] = "as it was";
        EXPECT_EQ(line.reader.ReadMemory(50), fails ? TransferResult::Failed : TransferResult::Cancelled);
        EXPECT_EQ(line.image.MemText[1001][kFrequency], "136.000000");
        EXPECT_EQ(line.image.MemText[1002][kFrequency], "as it was");
        EXPECT_EQ(line.image.DataChanged, !fails);
        EXPECT_EQ(line.observer.Refreshed(Changed::Memory), !fails);
        EXPECT_EQ(line.observer.ends, 1);
        EXPECT_EQ(line.observer.failed, fails ? std::vector<int>{0x4EA0} : std::vector<int>());
        ASSERT_EQ(line.observer.problems.size(), fails ? 1U : 0U);
        for (const Problem& problem : line.observer.problems)
            for (const char* part : {"4EA0", "10 attempts", "sent nothing", "clone mode"})
                EXPECT_NE(problem.details.find(part), std::string::npos) << problem.details;
    }
}

TEST(MemoryRead, FlagsChangeOnlyWhenAllTenBlocksHaveArrivedAndAnEmptyRowLosesItsNoteAndFlag)
{
    CloneImage held = DemoImage(0);
    ASSERT_TRUE(HasChannel(held, 1200) && !HasChannel(held, 1203));
    held.MemEnable[1203] = true;  // enabled without a channel
    held.MemEnable[1150] = true;  // the same, but outside of what is read
    SimulatedLine line(held);
    line.image.MemText[1200][kNote] = line.image.MemText[1203][kNote] = "note";
    const auto flags = line.image.MemEnable;
    line.SilenceAfter(9);
    EXPECT_EQ(line.reader.ReadMemory(52), TransferResult::Failed);
    EXPECT_EQ(line.image.MemEnable, flags);

    line.link.SetTimeOut(RadioLink::kTimeOut);
    EXPECT_EQ(line.reader.ReadMemory(52), TransferResult::Done);
    EXPECT_EQ(line.image.MemText[1200][kNote], "note");
    EXPECT_EQ(line.image.MemText[1203], ChannelTexts());
    EXPECT_TRUE(!line.image.MemEnable[1203] && line.image.MemEnable[1150]);
}

TEST(MemoryRead, TheBarFollowsTheSizesThatTheReceiverHas)
{
    SimulatedLine line(DemoImage(0));
    line.image = StartUpImage(0);  // bank 6 begins at row 650 here and at row 380 there
    EXPECT_EQ(line.reader.ReadMemory(6), TransferResult::Done);
    EXPECT_EQ(line.observer.maxima, (std::vector{79, 29}));
    EXPECT_EQ(line.observer.moves.back(), std::pair(29, 409));
    EXPECT_EQ(line.observer.refreshed,
              (std::vector{Changed::BankLayout, Changed::BankLinks, Changed::Memory}));
}

TEST(SettingsRead, DecodesTheBlocksAndTellsWhatChanged)
{
    SimulatedLine line(DemoImage(2));
    line.image = StartUpImage(0);
    line.SilenceAfter(5);
    EXPECT_EQ(line.reader.ReadSettings(), TransferResult::Failed);
    EXPECT_EQ(line.observer.refreshed, std::vector{Changed::Settings});
    EXPECT_EQ(line.image.Settings, DemoImage(2).Settings);
    EXPECT_FALSE(line.image.DataChanged);
    line.link.SetTimeOut(RadioLink::kTimeOut);
    EXPECT_EQ(line.reader.ReadSettings(), TransferResult::Done);
    EXPECT_EQ(line.image.VFOText, DemoImage(2).VFOText);
    EXPECT_TRUE(line.image.DataChanged && line.observer.Refreshed(Changed::Vfo));
}

TEST(MemoryWrite, KeepsTheReceiversFlagsOutsideTheGroup)
{
    CloneImage held = DemoImage(0);
    held.MemEnable.fill(false);
    held.MemEnable[99] = held.MemEnable[150] = held.MemEnable[1239] = true;
    SimulatedLine line(held);
    line.image = DemoImage(0);
    line.image.MemEnable.fill(true);
    EXPECT_EQ(line.writer.WriteMemory(2), TransferResult::Done);
    std::fill_n(held.MemEnable.begin() + 100, 100, true);
    EXPECT_EQ(line.image.MemEnable, held.MemEnable);
    EXPECT_EQ(ImageFromMemory(line.receiver.Memory(), {}).MemEnable, held.MemEnable);
}

TEST(MemoryWrite, ListsTheSearchPassRowsAndPatchesTheirCountIntoTheBlockOfTheReceiver)
{
    SimulatedLine line(DemoImage(1));
    ReceiverMemory memory = line.receiver.Memory();
    memory.At(0x0050) = MemoryBlock("0102030405060708090A0B0C0D0E0F10");
    line.receiver.SetMemory(memory);
    line.image = DemoImage(0);
    EXPECT_EQ(line.writer.WriteMemory(52), TransferResult::Done);
    EXPECT_EQ(line.receiver.Memory().At(0x0050), memory.At(0x0050));
    line.image.MemEnable[1100] = false;
    EXPECT_EQ(line.writer.WriteMemory(51), TransferResult::Done);
    EXPECT_EQ(line.receiver.Memory().At(0x0050).String(), "0102080405060708090A0B0C0D0E0F10");
    EXPECT_EQ(line.receiver.Memory().At(0x0280).String(), "0102030405061415FFFFFFFFFFFFFFFF");
    std::fill_n(line.image.MemEnable.begin() + 1100, 100, true);
    EXPECT_EQ(line.writer.WriteMemory(51), TransferResult::Done);
    EXPECT_EQ(line.receiver.Memory().At(0x0050).Byte(2), 100);
    EXPECT_EQ(line.receiver.Memory().At(0x02E0).String(), "60616263FFFFFFFFFFFFFFFFFFFFFFFF");
}

TEST(AllOperations, TheSecondPartRunsAfterAFailureButNotAfterACancel)
{
    for (const bool writes : {false, true}) {
        SimulatedLine line(DemoImage(0));
        line.image = DemoImage(0);
        const auto all = [&] { return writes ? line.writer.WriteAll() : line.reader.ReadAll(); };
        line.observer.cancelAfter = kSettingsBlocks - 1;
        EXPECT_EQ(all(), TransferResult::Cancelled);
        EXPECT_EQ(line.receiver.CommandLog().size(), 15U);
        EXPECT_FALSE(line.observer.Refreshed(Changed::SelectorToAll));
        line.observer = {};
        line.Spoil("silent:10", 50ms);
        EXPECT_EQ(all(), TransferResult::Failed);
        EXPECT_EQ(line.observer.problems.size(), 1U);
        EXPECT_EQ(line.observer.moves.back(), std::pair(1209, 1209));
        EXPECT_EQ(line.observer.refreshed.front(), Changed::SelectorToAll);
    }
}

}  // namespace
}  // namespace rqm5
