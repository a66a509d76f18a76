#include <gtest/gtest.h>

#include "link/commands.h"
#include "link/simulated_line.h"
#include "settings/settings_codec.h"

namespace rqm5 {
namespace {

using Commands = std::vector<std::string>;

/// The commands for a run of blocks as they stand on the wire: reads, or writes of what a memory holds.
Commands Blocks(int first, int count, const ReceiverMemory* written = nullptr)
{
    Commands commands;
    for (int address = first; address < first + 0x10 * count; address += 0x10)
        commands.push_back("QT~F" + HexAddress(address) +
                           (written != nullptr ? "W" + written->At(address).String() : "R"));
    return commands;
}

Commands operator+(Commands all, const Commands& more)
{
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

TEST(ReadSequence, AsksForTheBlocksInOrder)
{
    const Commands banks = Blocks(0x00C0, 7) + Blocks(0x0260, 1);
    const Commands table = Blocks(0x01C0, 10) + banks;
    const Commands settings = Blocks(0x0040, 2) + Blocks(0x0C00, 14);
    SimulatedLine line(DemoImage(0));
    const auto expect = [&line](TransferResult result, const Commands& commands) {
        EXPECT_EQ(result, TransferResult::Done);
        EXPECT_EQ(line.receiver.CommandLog(), commands);
        line.receiver.ClearCommandLog();
    };
    expect(line.reader.ReadBankPage(), banks);
    expect(line.reader.ReadSettings(), settings);
    expect(line.reader.ReadAll(), settings + table + Blocks(0x1000, 1210));
    const std::tuple<int, int, int> kGroups[] = {{1, 0x1320, 50},   {20, 0x1000, 0},   {49, 0x1000, 1},
                                                 {50, 0x4E80, 100}, {51, 0x54C0, 100}, {52, 0x5B00, 10}};
    for (const auto& [selector, first, count] : kGroups)
        expect(line.reader.ReadMemory(selector), table + Blocks(first, count));
}

TEST(WriteSequence, SendsTheBlocksOfAGroupInOrder)
{
    const std::tuple<int, int, int> kGroups[] = {{2, 0x1640, 100},  {49, 0x1000, 1},  {50, 0x4E80, 100},
                                                 {51, 0x54C0, 100}, {52, 0x5B00, 10}, {53, 0x1000, 1210}};
    CloneImage held = DemoImage(1);
    for (const int row : {0, 99, 150, 1000, 1150, 1205, 1239})
        held.MemData(row).enabled = !held.MemEnable(row);
    for (const auto& [selector, first, count] : kGroups) {
        SimulatedLine line(held);
        line.image = DemoImage(0);
        // Flags outside the group stay the receiver's, and so does its settings block but for the count.
        CloneImage merged = line.image;
        int others = 0;
        for (int row = 0; row < kMemoryRows; ++row)
            if (row < (first - 0x1000) / 0x10 || row >= (first - 0x1000) / 0x10 + count) {
                others += row < kRadioRows && merged.MemEnable(row) != held.MemEnable(row) ? 1 : 0;
                merged.MemData(row).enabled = held.MemEnable(row);
            }
        ReceiverMemory sent = MemoryFromImage(merged);
        sent.At(0x0050) = line.receiver.Memory().At(0x0050);
        sent.At(0x0050).SetByte(2, SearchPassCount(merged));

        ReceiverWriter writer(line.image, MemoryOf(selector), line.link, line.observer);
        EXPECT_EQ(writer.Write(), TransferResult::Done);
        Commands expected = Blocks(0x00C0, 7, &sent) + Blocks(0x0260, 1, &sent) + Blocks(0x01C0, 10) +
                            Blocks(0x01C0, 10, &sent);
        if (selector == 51 || selector == 53)  // those with the Search Pass channels
            expected = expected + Blocks(0x0280, 7, &sent) + Blocks(0x0050, 1) + Blocks(0x0050, 1, &sent);
        expected = expected + Blocks(first, count, &sent);
        EXPECT_EQ(line.receiver.CommandLog(), expected) << selector;
        EXPECT_EQ(writer.Plan().BlockCount(), static_cast<int>(expected.size())) << selector;
        EXPECT_TRUE(writer.Written() == merged) << selector;
        EXPECT_EQ(writer.OtherFlags(), others) << selector;
    }
}

TEST(WriteSequence, SettingsAreFollowedByThePresetsOfTheRegion)
{
    const std::tuple<int, int, int> kModels[] = {{0, 68, -1}, {1, 65, 26}, {2, 74, -1}, {3, 74, -1}};
    for (const auto& [model, presets, gap] : kModels) {
        SimulatedLine line(DemoImage((model + 1) % 3));
        line.image = DemoImage(model);
        ReceiverMemory sent = MemoryFromImage(line.image);
        // A count of Search Pass channels comes with the memory alone.
        sent.At(0x0050) = SetData2(line.image);
        EXPECT_EQ(line.Write(kSettingsOnly), TransferResult::Done);
        const Commands expected = Blocks(0x0040, 2, &sent) + Blocks(0x0C00, 14, &sent);
        const Commands first = Blocks(0x0560, gap < 0 ? presets : gap, &sent);
        const Commands behindTheGap = Blocks(0x0710, gap < 0 ? 0 : presets - gap, &sent);
        EXPECT_EQ(line.receiver.CommandLog(), expected + first + behindTheGap) << model;
    }
}

TEST(WriteSequence, BankPageSendsSizesWithTheFixedWordsThenLinks)
{
    SimulatedLine line(DemoImage(1));
    line.image.SetBankSize(49, 16);
    line.image.SetBankSize(50, 684);
    line.image.SetBankLink(0, true);
    line.image.SetBankLink(55, true);
    EXPECT_EQ(line.Write(kBanksOnly), TransferResult::Done);
    const ReceiverMemory after = line.receiver.Memory();
    EXPECT_EQ(line.receiver.CommandLog(), Blocks(0x00C0, 7, &after) + Blocks(0x0260, 1, &after));
    EXPECT_EQ(after.At(0x0120).String(), "00001000AC02640064000A0017000000");
    EXPECT_EQ(after.At(0x0260).String(), "80000000000001FFFFFFFFFFFFFFFFFF");
}

}  // namespace
}  // namespace rqm5
