#include "image/channel_block.h"

#include <gtest/gtest.h>

#include <tuple>

#include "image/row_texts.h"

namespace rqm5 {
namespace {

using enum RowKind;
using Texts = std::vector<std::string>;

Channel Decoded(const MemoryBlock& block, RowKind kind = Memory)
{
    CloneImage image;
    EXPECT_TRUE(kind == Memory ? DecodeMemoryBlock(image, block, 0) : DecodeVfoBlock(image, block, 0));
    return image.At({kind, 0});
}

TEST(ChannelBlock, OutOfRangeBytesBecomeZero)
{
    // A block, the block that its row makes, and what the row shows: every byte as high as it may be, then
    // one higher.
    const std::tuple<RowKind, const char*, const char*, Texts> cases[] = {
        // clang-format off
        {Memory, "0145500000021248101C262000600000", "0145500000021248101C262000600000",
         {"145.500000", "WFM", "8MHz", "Rev.", "16", "JR", "250.3Hz", "-Shift", "0.600000", ""}},
        {Memory, "0145500000031348111D272000600000", "01455000000000480000002000600000",
         {"145.500000", "FM", "9KHz", "Rev.", "0", "300Hz", "67.0Hz", "-Shift", "0.600000", ""}},
        {Vfo, "0145500000021340101C262000600000", "0145500000021340101C262000600000",
         {"145.500000", "WFM", "1KHz", "Rev.", "16", "JR", "250.3Hz", "-Shift", "0.600000", ""}},
        {Vfo, "0145500000031441111D272100600000", "01455000000000000000000000600000",
         {"145.500000", "FM", "9KHz", "OFF", "0", "300Hz", "67.0Hz", "OFF", "0.600000", ""}},
        // clang-format on
    };
    for (const auto& [kind, block, made, texts] : cases) {
        const Channel row = Decoded(MemoryBlock(block), kind);
        EXPECT_EQ(EncodeChannel(row).Text(), made);
        EXPECT_EQ(TextsOf(row, kind), texts) << block;
    }
}

TEST(ChannelBlock, OptionAndShiftDifferBetweenMemoryAndVfo)
{
    const std::tuple<RowKind, Column, int, int, const char*> cases[] = {
        // clang-format off
        {Memory, kOption, 0x07, 0, "OFF"}, {Memory, kOption, 0x0F, 8, "OFF"}, {Memory, kOption, 0x17, 16, "Scrt"},
        {Memory, kOption, 0x2F, 40, "Carrier"}, {Memory, kOption, 0x3F, 56, "Tone"}, {Memory, kOption, 0x40, 64, "Rev."},
        {Memory, kOption, 0x51, 80, "None"}, {Memory, kOption, 0xEF, 232, "None"},
        {Vfo, kOption, 0x17, 23, "SCRT"}, {Vfo, kOption, 0x40, 64, "Rev."}, {Vfo, kOption, 0x41, 0, "OFF"},
        {Memory, kShift, 0x10, 16, "+Shift"}, {Memory, kShift, 0x20, 32, "-Shift"},
        {Memory, kShift, 0x11, 17, "OFF"}, {Memory, kShift, 0x30, 48, "OFF"}, {Memory, kShift, 0xEE, 238, "OFF"},
        {Vfo, kShift, 0x11, 17, "+Shift"}, {Vfo, kShift, 0x20, 32, "-Shift"}, {Vfo, kShift, 0x21, 0, "OFF"},
        // clang-format on
    };
    for (const auto& [kind, column, byte, number, text] : cases) {
        MemoryBlock block("01455000000000000000000000000000");
        block.SetByte(column == kOption ? 7 : 11, byte);
        const Channel row = Decoded(block, kind);
        EXPECT_EQ(NumberOf(row, column), number) << std::hex << byte;
        EXPECT_EQ(TextsOf(row, kind)[column], text) << std::hex << byte;
    }
}

TEST(ChannelBlock, EmptyBlocksClearTheRowButNotItsNote)
{
    CloneImage image;
    const std::string channel = "01455000000000000000000000000000";
    for (const std::string& empty :
         {std::string(32, 'F'), std::string(32, '0'), "0145FFFF" + std::string(24, '0'),
          channel.substr(0, 15) + "FFFF" + channel.substr(19), channel.substr(0, 28) + "FFFF",
          "XX00000000" + channel.substr(10)}) {
        ASSERT_TRUE(DecodeMemoryBlock(image, MemoryBlock(channel), 7));
        image.MemData(7).note = "note";
        EXPECT_FALSE(DecodeMemoryBlock(image, MemoryBlock(empty), 7)) << empty;
        EXPECT_EQ(EncodeMemoryRow(image, 7).Text(), std::string(32, '0'));
        EXPECT_EQ(TextsOf(image.MemData(7)), (Texts{"", "", "", "", "", "", "", "", "", "note"}));
    }
    EXPECT_TRUE(DecodeMemoryBlock(image, MemoryBlock(channel.substr(0, 29) + "FFF"), 7));
}

TEST(ChannelBlock, ShiftFractionLosesItsLeadingZeros)
{
    const std::tuple<const char*, int, const char*> cases[] = {
        // clang-format off
        {"00050000", 500000, "0.500000"}, {"12000001", 12100000, "12.100000"}, {"99999999", 99999999, "99.999999"},
        {"A1B23456", 0, "0.000000"}, {"1A12X456", 1120000, "1.120000"},
        // clang-format on
    };
    for (const auto& [digits, hertz, text] : cases) {
        const Channel row = Decoded(MemoryBlock(std::string("014550000000000000000000") + digits));
        EXPECT_EQ(row.shiftFrequency, hertz) << digits;
        EXPECT_EQ(TextsOf(row)[kShiftFrequency], text);
    }
}

}  // namespace
}  // namespace rqm5
