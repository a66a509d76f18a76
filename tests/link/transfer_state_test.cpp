#include <gtest/gtest.h>

#include "link/simulated_line.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

using namespace std::chrono_literals;

constexpr int kTables = 18;          ///< blocks that a memory read transfers before its channels
constexpr int kSettingsBlocks = 16;  ///< blocks that a whole settings read transfers

/// Switches the flags of these rows.
void EnableRows(CloneImage& image, RowRange rows, bool isEnabled)
{
    for (int row = rows.first; row <= rows.Last(); ++row)
        image.MemData(row).enabled = isEnabled;
}

TEST(MemoryRead, KeepsWhatCameBeforeAFailureOrACancel)
{
    for (const bool fails : {true, false}) {
        SimulatedLine line(DemoImage(0));
        if (fails)
            line.SilenceAfter(kTables + 2);
        else
            line.observer.cancelAfter = kTables + 2;
        line.image.MemData(1002).frequency = 1;
        EXPECT_EQ(line.reader.ReadMemory(50), fails ? TransferResult::Failed : TransferResult::Cancelled);
        EXPECT_EQ(line.image.MemText(1001, kFrequency), "136.000000");
        EXPECT_EQ(line.image.MemData(1002).frequency, 1);
        EXPECT_TRUE(line.reader.HasStored());
        EXPECT_EQ(line.observer.ends, 1);
        ASSERT_EQ(line.observer.problems.size(), fails ? 1U : 0U);
        for (const Problem& problem : line.observer.problems)
            for (const char* part : {"4EA0", "10 attempts", "sent nothing", "clone mode"})
                EXPECT_NE(problem.details.English().find(part), std::string::npos)
                    << problem.details.English();
    }
}

TEST(MemoryRead, FlagsChangeOnlyWhenAllTenBlocksHaveArrivedAndAnEmptyRowLosesItsNoteAndFlag)
{
    CloneImage held = DemoImage(0);
    ASSERT_TRUE(held.MemData(1200).HasChannel() && !held.MemData(1203).HasChannel());
    held.MemData(1203).enabled = true;  // enabled without a channel
    held.MemData(1150).enabled = true;  // the same, but outside of what is read
    SimulatedLine line(held);
    line.image.MemData(1200).note = line.image.MemData(1203).note = "note";
    const CloneImage before = line.image;
    line.SilenceAfter(9);
    EXPECT_EQ(line.reader.ReadMemory(52), TransferResult::Failed);
    EXPECT_TRUE(line.image == before);
    EXPECT_FALSE(line.reader.HasStored());

    line.link.SetTimeOut(RadioLink::kTimeOut);
    EXPECT_EQ(line.reader.ReadMemory(52), TransferResult::Done);
    EXPECT_EQ(line.image.MemData(1200).note, "note");
    EXPECT_TRUE(line.image.MemData(1203) == Channel());
    EXPECT_TRUE(line.image.MemEnable(1200) && line.image.MemEnable(1150));
}

TEST(MemoryRead, TheBarFollowsTheSizesThatTheReceiverHas)
{
    SimulatedLine line(DemoImage(0));
    line.image = StartUpImage(0);  // bank 6 begins at row 650 here and at row 380 there
    EXPECT_EQ(line.reader.ReadMemory(6), TransferResult::Done);
    EXPECT_EQ(line.observer.maxima, (std::vector{79, 29}));
    EXPECT_EQ(line.observer.moves.back(), std::pair(29, 409));
    EXPECT_EQ(line.observer.stores, 3);  // flags, sizes, links
}

TEST(SettingsRead, DecodesTheBlocksAndTellsWhenTheyMayBeShown)
{
    // As it comes back: with the count of Search Pass channels.
    const CloneImage held = ImageFromMemory(MemoryFromImage(DemoImage(2)), {});
    SimulatedLine line(held);
    line.image = StartUpImage(0);
    line.observer.cancelAfter = 1;
    EXPECT_EQ(line.reader.ReadSettings(), TransferResult::Cancelled);
    EXPECT_FALSE(line.reader.HasStored());
    line.observer = {};
    line.SilenceAfter(5);
    EXPECT_EQ(line.reader.ReadSettings(), TransferResult::Failed);
    EXPECT_EQ(line.observer.stores, 1);
    EXPECT_TRUE(line.image.Settings() == held.Settings());
    EXPECT_TRUE(line.reader.HasStored());
    line.link.SetTimeOut(RadioLink::kTimeOut);
    EXPECT_EQ(line.reader.ReadSettings(), TransferResult::Done);
    for (int row = 0; row < kVfoRows; ++row)
        EXPECT_TRUE(line.image.VFOData(row) == held.VFOData(row)) << row;
    EXPECT_EQ(line.observer.stores, 3);
}

TEST(MemoryWrite, ListsTheSearchPassRowsAndPatchesTheirCountIntoTheBlockOfTheReceiver)
{
    SimulatedLine line(DemoImage(1));
    ReceiverMemory memory = line.receiver.Memory();
    memory.At(0x0050) = MemoryBlock("0102030405060708090A0B0C0D0E0F10");
    line.receiver.SetMemory(memory);
    line.image = DemoImage(0);
    EXPECT_EQ(line.Write(MemoryOf(52)), TransferResult::Done);
    EXPECT_EQ(line.receiver.Memory().At(0x0050), memory.At(0x0050));
    line.image.MemData(1100).enabled = false;
    EXPECT_EQ(line.Write(MemoryOf(51)), TransferResult::Done);
    EXPECT_EQ(line.receiver.Memory().At(0x0050).String(), "0102080405060708090A0B0C0D0E0F10");
    EXPECT_EQ(line.receiver.Memory().At(0x0280).String(), "0102030405061415FFFFFFFFFFFFFFFF");
    EnableRows(line.image, kSearchPass.rows, true);
    EXPECT_EQ(line.Write(MemoryOf(51)), TransferResult::Done);
    EXPECT_EQ(line.receiver.Memory().At(0x0050).Byte(2), 100);
    EXPECT_EQ(line.receiver.Memory().At(0x02E0).String(), "60616263FFFFFFFFFFFFFFFFFFFFFFFF");
}

TEST(AllOperations, AReadGoesOnAfterFailedSettingsAWriteDoesNotAndACancelEndsBoth)
{
    for (const bool writes : {false, true}) {
        SimulatedLine line(DemoImage(0));
        line.image = DemoImage(0);
        const auto all = [&] { return writes ? line.Write(kEverything) : line.reader.ReadAll(); };
        line.observer.cancelAfter = kSettingsBlocks - 1;
        EXPECT_EQ(all(), TransferResult::Cancelled);
        EXPECT_EQ(line.receiver.CommandLog().size(), 15U);
        EXPECT_TRUE(line.observer.groups.empty());
        line.observer = {};
        line.Spoil("silent:10", 50ms);
        EXPECT_EQ(all(), TransferResult::Failed);
        EXPECT_EQ(line.observer.problems.size(), 1U);
        EXPECT_EQ(line.observer.moves.size(), writes ? 0U : 1210U);
        EXPECT_EQ(line.observer.groups, writes ? std::vector<int>() : std::vector{kSelectAll});
        EXPECT_EQ(line.observer.written.size(), 0U);

        line.observer = {};
        line.link.SetTimeOut(RadioLink::kTimeOut);
        EXPECT_EQ(all(), TransferResult::Done);
        EXPECT_EQ(line.observer.groups, std::vector{kSelectAll});
        EXPECT_EQ(line.observer.maxima.back(), 1209);
        EXPECT_EQ(line.observer.moves.back(), std::pair(1209, 1209));
        EXPECT_EQ(line.observer.ends, 1);
    }
}

}  // namespace
}  // namespace rqm5
