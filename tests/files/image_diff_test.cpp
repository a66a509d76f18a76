#include "files/image_diff.h"

#include <gtest/gtest.h>

#include <functional>

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
        {[](CloneImage& b) { SetBankSize(b, 49, 3); }, "Bank 49 size: 0 -> 3"},
        {[](CloneImage& b) { b.BankLink[2] = true; }, "Bank 2 link: off -> on"},
        {[](CloneImage& b) { b.VFOText[3][kNote] = "x\n"; }, "VFO row 3: Note \"\" -> \"x\\n\""},
        {[](CloneImage& b) { b.MemEnable[1105] = true; }, "memory row 1105 (Search Pass S5): Enabled off -> on"},
        {[](CloneImage& b) { DecodeMemoryBlock(b, MemoryBlock("01455000000001300400001000600000"), 12); },
         "memory row 12 (Bank 0, channel 12): Option Scrt -> Tone, Skip on -> off"},
        {[](CloneImage& b) { DecodeMemoryBlock(b, MemoryBlock(), 12); },
         "memory row 12 (Bank 0, channel 12): 145.500000 FM -> empty"},
        // clang-format on
    };
    for (const auto& [change, line] : cases) {
        CloneImage b = a;
        change(b);
        EXPECT_EQ(DescribeDifferences(a, b), std::vector<std::string>{line});
    }
    EXPECT_TRUE(DescribeDifferences(a, a).empty());
}

}  // namespace
}  // namespace rqm5
