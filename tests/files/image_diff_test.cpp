#include "files/image_diff.h"

#include <gtest/gtest.h>

#include <functional>

#include "files/random_image.h"
#include "image/channel_record.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

TEST(ImageDiff, TellsEachKindOfDifferenceInWords)
{
    CloneImage a = StartUpImage(0);
    DecodeMemoryBlock(a, MemoryBlock("01455000000001180400001000600000"), 12);
    const std::pair<std::function<void(CloneImage&)>, const char*> cases[] = {
        // clang-format off
        {[](CloneImage& b) { b.Settings.lamp = 2; }, "Lamp: 5sec -> ON"},
        {[](CloneImage& b) { b.Settings.beep = false; }, "Beep: on -> off"},
        {[](CloneImage& b) { SetBankSize(b, 49, 3); }, "Bank 49 size: 0 -> 3"},
        {[](CloneImage& b) { SetBankSize(b, 50, 3); }, "Channels in no bank: 0 -> 3"},
        {[](CloneImage& b) { b.BankLink[2] = true; }, "Bank 2 link: off -> on"},
        {[](CloneImage& b) { b.BankLink[55] = true; }, "Link flag 55 link: off -> on"},
        {[](CloneImage& b) { b.VFOText[3][kNote] = "x\n"; }, "VFO row 3: Note \"\" -> \"x\\n\""},
        {[](CloneImage& b) { b.MemEnable[1105] = true; }, "memory row 1105 (Search Pass S5): Enabled off -> on"},
        {[](CloneImage& b) { b.MemData[12][kOption] -= 8; }, "memory row 12 (Bank 0, channel 12): Skip on -> off"},
        {[](CloneImage& b) { DecodeMemoryBlock(b, MemoryBlock("01455000000001300400001000600000"), 12); },
         "memory row 12 (Bank 0, channel 12): Option Scrt -> Tone, Skip on -> off"},
        {[](CloneImage& b) { b.MemData[12][kShift] = 17; },
         "memory row 12 (Bank 0, channel 12): Shift 16.000000 -> 17.000000"},
        {[](CloneImage& b) { DecodeMemoryBlock(b, MemoryBlock(), 12); },
         "memory row 12 (Bank 0, channel 12): 145.500000 FM -> empty"},
        {[](CloneImage& b) { DecodeMemoryBlock(b, MemoryBlock("01460000000101180400001000600000"), 12); },
         "memory row 12 (Bank 0, channel 12): Frequency 145.500000 -> 146.000000, Mode FM -> AM"},
        // clang-format on
    };
    for (const auto& [change, line] : cases) {
        CloneImage b = a;
        change(b);
        EXPECT_EQ(DescribeDifferences(a, b), std::vector<std::string>{line});
    }
    EXPECT_TRUE(DescribeDifferences(a, a).empty());
    EXPECT_GT(DescribeDifferences(a, test::RandomImage(1)).size(), 1000U);
}

}  // namespace
}  // namespace rqm5
