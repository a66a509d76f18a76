#include "link/expected_memory.h"

#include <gtest/gtest.h>

#include "link/simulated_line.h"

namespace rqm5 {
namespace {

TransferResult Write(SimulatedLine& line, const TransferScope& scope)
{
    const TransferResult result = scope.settings ? line.writer.WriteSettings() : TransferResult::Done;
    return scope.memory && result == TransferResult::Done ? line.writer.WriteMemory(scope.selector) : result;
}

auto BlockAt(const std::vector<ExpectedBlock>& blocks, int address)
{
    return std::find_if(blocks.begin(), blocks.end(),
                        [=](const auto& block) { return block.address == address; });
}

TEST(ExpectedMemory, IsWhatAWriteLeavesBehind)
{
    const TransferScope kScopes[] = {{true, true, 53},  {true, false, 53}, {false, true, 51},
                                     {false, true, 49}, {false, true, 52}, {false, true, 20}};
    for (const TransferScope& scope : kScopes) {
        SimulatedLine line(DemoImage(1));
        const ReceiverMemory before = line.receiver.Memory();
        line.image = DemoImage(0);
        line.image.MemEnable[1101] = false;
        const auto expected = ExpectedAfterWrite(line.image, scope);
        ASSERT_EQ(Write(line, scope), TransferResult::Done);
        const ReceiverMemory after = line.receiver.Memory();
        for (const ExpectedBlock& block : expected)
            EXPECT_TRUE(Agrees(block, after.At(block.address))) << block.label << " " << scope.selector;
        for (int address = 0; address < 0x10000; address += 0x10) {
            const bool isPreset = address >= 0x0560 && address < 0x0A00;
            EXPECT_TRUE(isPreset || BlockAt(expected, address) != expected.end() ||
                        after.At(address) == before.At(address))
                << HexAddress(address);
        }
    }
}

TEST(ExpectedMemory, IgnoresOnlyTheFlagsOfOtherRowsAndNamesRowsAsPeopleDo)
{
    const CloneImage image = DemoImage(0);
    const auto expected = ExpectedAfterWrite(image, {false, true, 52});
    MemoryBlock flags = MemoryFromImage(image).At(0x0250);  // rows 1152 to 1279; row 1200 is bit 48
    flags.SetByte(5, flags.Byte(5) ^ 0x01);                 // row 1199
    EXPECT_TRUE(Agrees(*BlockAt(expected, 0x0250), flags));
    flags.SetByte(6, flags.Byte(6) ^ 0x80);  // row 1200
    EXPECT_FALSE(Agrees(*BlockAt(expected, 0x0250), flags));

    EXPECT_EQ(RowLabel(image, 62), "Row 62 (Bank 1, channel 12)");
    EXPECT_EQ(RowLabel(image, 990), "Row 990 (no bank)");
    EXPECT_EQ(RowLabel(image, 1003), "Row 1003 (Program Scan 1B)");
    EXPECT_EQ(RowLabel(image, 1105), "Row 1105 (Search Pass S5)");
    EXPECT_EQ(RowLabel(image, 1209), "Row 1209 (Priority Pr9)");
}

}  // namespace
}  // namespace rqm5
