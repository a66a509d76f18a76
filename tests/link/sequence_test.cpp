#include <gtest/gtest.h>

#include "link/commands.h"
#include "link/simulated_line.h"

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
    for (const auto& [selector, first, count] : kGroups) {
        SimulatedLine line(DemoImage(1));
        line.image = DemoImage(0);
        EXPECT_EQ(line.writer.WriteMemory(selector), TransferResult::Done);
        const ReceiverMemory after = line.receiver.Memory();
        Commands expected = Blocks(0x00C0, 7, &after) + Blocks(0x0260, 1, &after) + Blocks(0x01C0, 10) +
                            Blocks(0x01C0, 10, &after);
        if (selector == 51 || selector == 53)  // those with the Search Pass channels
            expected = expected + Blocks(0x0280, 7, &after) + Blocks(0x0050, 1) + Blocks(0x0050, 1, &after);
        EXPECT_EQ(line.receiver.CommandLog(), expected + Blocks(first, count, &after)) << selector;
    }
}

TEST(WriteSequence, SettingsAreFollowedByThePresetsOfTheRegion)
{
    const std::tuple<int, std::size_t, const char*> kModels[] = {
        {0, 68, "QT~F0990W"}, {1, 65, "QT~F0970W"}, {2, 74, "QT~F09F0W"}, {3, 74, "QT~F09F0W"}};
    for (const auto& [model, presets, last] : kModels) {
        SimulatedLine line(DemoImage((model + 1) % 3));
        const ReceiverMemory before = line.receiver.Memory();
        line.image = DemoImage(model);
        EXPECT_EQ(line.writer.WriteSettings(), TransferResult::Done);
        const Commands log = line.receiver.CommandLog();
        const ReceiverMemory after = line.receiver.Memory();
        ASSERT_EQ(log.size(), 16 + presets);
        EXPECT_EQ(Commands(log.begin(), log.begin() + 16),
                  Blocks(0x0040, 2, &after) + Blocks(0x0C00, 14, &after));
        EXPECT_EQ(log[16].substr(0, 9), "QT~F0560W");
        EXPECT_EQ(log.back().substr(0, 9), last);
        EXPECT_EQ(after.At(0x0700) == before.At(0x0700), model == 1);
    }
}

TEST(WriteSequence, BankPageSendsSizesWithTheFixedWordsThenLinks)
{
    SimulatedLine line(DemoImage(1));
    line.image.BankSize[49] = 16;
    line.image.BankSize[50] = 684;
    line.image.BankLink[0] = line.image.BankLink[55] = true;
    EXPECT_EQ(line.writer.WriteBankPage(), TransferResult::Done);
    const ReceiverMemory after = line.receiver.Memory();
    EXPECT_EQ(line.receiver.CommandLog(), Blocks(0x00C0, 7, &after) + Blocks(0x0260, 1, &after));
    EXPECT_EQ(after.At(0x0120).String(), "00001000AC02640064000A0017000000");
    EXPECT_EQ(after.At(0x0260).String(), "80000000000001FFFFFFFFFFFFFFFFFF");
}

}  // namespace
}  // namespace rqm5
