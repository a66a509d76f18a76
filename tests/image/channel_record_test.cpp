#include "image/channel_record.h"

#include <gtest/gtest.h>

#include <tuple>

namespace rqm5 {
namespace {

/// A valid channel block (145.5 MHz, all else 0) with some bytes replaced.
MemoryBlock BlockWith(std::initializer_list<std::pair<std::size_t, int>> bytes)
{
    MemoryBlock block("01455000000000000000000000000000");
    for (const auto& [byte, value] : bytes)
        block.SetByte(byte, value);
    return block;
}

ChannelRecord Decoded(const MemoryBlock& block, RowKind kind = RowKind::Memory)
{
    ChannelRecord record;
    EXPECT_TRUE(DecodeBlock(block, kind, record));
    return record;
}

TEST(ChannelRecord, OutOfRangeBytesBecomeZero)
{
    const std::tuple<Column, std::size_t, int, int, const char*> cases[] = {
        // clang-format off
        {kMode, 5, 2, 2, "FM"}, {kStep, 6, 18, 19, "9KHz"}, {kSecret, 8, 16, 16, "0"},
        {kCarrier, 9, 28, 28, "300Hz"}, {kTone, 10, 38, 38, "67.0Hz"},
        // clang-format on
    };
    for (const auto& [column, byte, highestMemory, highestVfo, textOfZero] : cases)
        for (const RowKind kind : {RowKind::Memory, RowKind::Vfo}) {
            const int highest = kind == RowKind::Memory ? highestMemory : highestVfo;
            ChannelRecord record = Decoded(BlockWith({{byte, highest}}), kind);
            EXPECT_EQ(record.numbers[column], highest);
            EXPECT_NE(record.texts[column], textOfZero);
            record = Decoded(BlockWith({{byte, highest + 1}}), kind);
            EXPECT_EQ(record.numbers[column], 0) << "column " << column;
            EXPECT_EQ(record.texts[column], textOfZero);
        }
}

TEST(ChannelRecord, OptionAndShiftDifferBetweenMemoryAndVfo)
{
    constexpr RowKind kMemory = RowKind::Memory, kVfo = RowKind::Vfo;
    const std::tuple<RowKind, Column, int, double, const char*> cases[] = {
        // clang-format off
        {kMemory, kOption, 0x07, 0, "OFF"}, {kMemory, kOption, 0x0F, 8, "OFF"}, {kMemory, kOption, 0x17, 16, "Scrt"},
        {kMemory, kOption, 0x2F, 40, "Carrier"}, {kMemory, kOption, 0x40, 64, "Rev."},
        {kMemory, kOption, 0x51, 80, "None"}, {kMemory, kOption, 0xEF, 232, "None"},
        {kVfo, kOption, 0x17, 23, "SCRT"}, {kVfo, kOption, 0x40, 64, "Rev."}, {kVfo, kOption, 0x41, 0, "OFF"},
        {kMemory, kShift, 0x10, 16, "+Shift"}, {kMemory, kShift, 0x20, 32, "-Shift"},
        {kMemory, kShift, 0x11, 17, "OFF"}, {kMemory, kShift, 0x30, 48, "OFF"}, {kMemory, kShift, 0xEE, 238, "OFF"},
        {kVfo, kShift, 0x11, 17, "+Shift"}, {kVfo, kShift, 0x20, 32, "-Shift"}, {kVfo, kShift, 0x21, 0, "OFF"},
        // clang-format on
    };
    for (const auto& [kind, column, byte, number, text] : cases) {
        const ChannelRecord record = Decoded(BlockWith({{column == kOption ? 7U : 11U, byte}}), kind);
        EXPECT_EQ(record.numbers[column], number) << std::hex << byte;
        EXPECT_EQ(record.texts[column], text) << std::hex << byte;
    }
}

TEST(ChannelRecord, EmptyBlocksClearTheRowButNotItsNote)
{
    CloneImage image;
    const std::string channel = "01455000000000000000000000000000";
    for (const std::string& empty :
         {std::string(32, 'F'), std::string(32, '0'), "0145FFFF" + std::string(24, '0'),
          channel.substr(0, 15) + "FFFF" + channel.substr(19), channel.substr(0, 28) + "FFFF",
          "XX00000000" + channel.substr(10)}) {
        ASSERT_TRUE(DecodeMemoryBlock(image, MemoryBlock(channel), 7));
        image.MemText[7][kNote] = "note";
        EXPECT_FALSE(DecodeMemoryBlock(image, MemoryBlock(empty), 7)) << empty;
        EXPECT_EQ(image.MemData[7], ChannelNumbers{});
        EXPECT_EQ(image.MemText[7], (ChannelTexts{"", "", "", "", "", "", "", "", "", "note"}));
    }
    EXPECT_TRUE(DecodeMemoryBlock(image, MemoryBlock(channel.substr(0, 29) + "FFF"), 7));
}

TEST(ChannelRecord, ShiftFractionLosesItsLeadingZeros)
{
    const std::tuple<const char*, double, const char*> cases[] = {
        // clang-format off
        {"00050000", 0.5, "0.500000"}, {"12000001", 12.1, "12.100000"}, {"99999999", 99.999999, "99.999999"},
        {"A1B23456", 0.0, "0.000000"}, {"1A12X456", 1.12, "1.120000"},
        // clang-format on
    };
    for (const auto& [digits, value, text] : cases) {
        const ChannelRecord record = Decoded(MemoryBlock(std::string("014550000000000000000000") + digits));
        EXPECT_DOUBLE_EQ(record.numbers[kShiftFrequency], value) << digits;
        EXPECT_EQ(record.texts[kShiftFrequency], text);
    }
}

TEST(ChannelRecord, EncodesWhatTheReceiverHolds)
{
    EXPECT_EQ(EncodeNumbers({145.5, 0, 0, 0, 0, 0, 0, 16, 0.6}).Text(), "01455000000000000000001000600000");
    EXPECT_EQ(EncodeNumbers({1299.995, 2, 19, 72, 16, 28, 38, 32, 99.999999}).Text(),
              "1299995000021348101C262099999999");
    EXPECT_EQ(EncodeNumbers({}).Text(), std::string(32, '0'));
}

}  // namespace
}  // namespace rqm5
