#include "memory/change_words.h"

#include <gtest/gtest.h>

#include <functional>

#include "image/channel_block.h"
#include "language/english.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

TEST(ChangeWords, TellEachKindOfDifference)
{
    CloneImage a = StartUpImage(0);
    DecodeMemoryBlock(a, MemoryBlock("01455000000001180400001000600000"), 12);
    DecodeMemoryBlock(a, MemoryBlock("01455000000000000000001100000000"), 13);
    const std::pair<std::function<void(CloneImage&)>, const char*> cases[] = {
        // clang-format off
        {[](CloneImage& b) { b.Settings().lamp = 2; }, "Lamp: 5sec -> ON"},
        {[](CloneImage& b) { b.SetBankSize(49, 3); }, "Bank 49 size: 0 -> 3"},
        {[](CloneImage& b) { b.SetBankSize(kUnassigned, 9); }, "Channels in no bank: 0 -> 9"},
        {[](CloneImage& b) { b.SetBankLink(2, true); }, "Bank 2 link: off -> on"},
        {[](CloneImage& b) { b.SetBankLink(50, true); }, "Link flag 50 link: off -> on"},
        {[](CloneImage& b) { b.VFOData(3).note = "x\n"; }, "VFO row 3: Note \"\" -> \"x\\n\""},
        {[](CloneImage& b) { b.MemData(1105).enabled = true; }, "memory row 1105 (Search Pass S5): Enabled off -> on"},
        {[](CloneImage& b) { b.MemData(200).note = "y"; }, "memory row 200 (Bank 1, channel 0): Note \"\" -> \"y\""},
        {[](CloneImage& b) { b.MemData(1210).note = "z"; },
         "memory row 1210 (not in the receiver): Note \"\" -> \"z\""},
        {[](CloneImage& b) { DecodeMemoryBlock(b, MemoryBlock("01455000000001300400001000600000"), 12); },
         "memory row 12 (Bank 0, channel 12): Option Scrt -> Tone, Skip on -> off"},
        {[](CloneImage& b) { b.MemData(13).shift = 0x30; },  // shows as OFF, too
         "memory row 13 (Bank 0, channel 13): Shift 17.000000 -> 48.000000"},
        {[](CloneImage& b) { DecodeMemoryBlock(b, MemoryBlock(), 12); },
         "memory row 12 (Bank 0, channel 12): 145.500000 FM -> empty"},
        {[](CloneImage& b) { DecodeMemoryBlock(b, MemoryBlock("01000000000000000000000000000000"), 999); },
         "memory row 999 (Bank 9, channel 49): empty -> 100.000000 FM"},
        // clang-format on
    };
    for (const auto& [change, line] : cases) {
        CloneImage b = a;
        change(b);
        EXPECT_EQ(English(DescribeChange(a, Difference(a, b))), std::vector<std::string>{line});
    }
    EXPECT_TRUE(DescribeChange(a, {}).empty());
}

}  // namespace
}  // namespace rqm5
