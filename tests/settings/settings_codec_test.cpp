#include "settings/settings_codec.h"

#include <gtest/gtest.h>

#include <tuple>

#include "memory/start_image.h"

namespace rqm5 {
namespace {

CloneImage Decoded(const MemoryBlock& first, const MemoryBlock& second)
{
    CloneImage image;
    image.SetData1 = first;
    image.SetData2 = second;
    DecodeSettings(image);
    return image;
}

TEST(Settings, DefaultsOfEachRegionDecodeAndEncodeToThemselves)
{
    for (int model = 0; model < 4; ++model) {
        CloneImage image = StartUpImage(model);
        ReceiverSettings expected;
        expected.model = model;
        EXPECT_EQ(image.Settings, expected);
        EncodeSettings(image);
        EXPECT_EQ(image.SetData1.Text(), "A50" + std::to_string(model) + "FF8100060000FFFFFFFF00011E03");
        EXPECT_EQ(image.SetData2.Text(), "0000600101000200482300FFFFFFFFFF");
    }
}

TEST(Settings, InvalidBytesAreRepairedInTheBlock)
{
    using Value = int ReceiverSettings::*;
    const std::tuple<int, std::size_t, int, int, Value> cases[] = {
        {1, 1, 4, 0x00, &ReceiverSettings::model},        {1, 14, 50, 0x1E, &ReceiverSettings::volume},
        {1, 15, 9, 0x03, &ReceiverSettings::squelch},     {2, 4, 2, 0x01, &ReceiverSettings::lamp},
        {2, 5, 3, 0x00, &ReceiverSettings::autoPowerOff}, {2, 6, 4, 0x02, &ReceiverSettings::bugLevel},
    };
    for (const auto& [block, byte, highest, repair, setting] : cases)
        for (const int value : {highest, highest + 1, 255}) {
            MemoryBlock blocks[] = {DefaultSetData1(0), DefaultSetData2()};
            blocks[block - 1].SetByte(byte, value);
            const CloneImage image = Decoded(blocks[0], blocks[1]);
            const int expected = value > highest ? repair : value;
            EXPECT_EQ(image.Settings.*setting, expected) << "byte " << byte;
            EXPECT_EQ((block == 1 ? image.SetData1 : image.SetData2).Byte(byte), expected);
        }
    MemoryBlock batterySave = DefaultSetData2();
    batterySave.SetByte(3, 2);
    EXPECT_TRUE(Decoded(DefaultSetData1(0), batterySave).Settings.batterySave);
}

TEST(Settings, OperatingModesNormaliseOneWayAndEncodeAnother)
{
    for (int byte = 0; byte < 256; ++byte) {
        MemoryBlock first = DefaultSetData1(0);
        first.SetByte(4, byte);
        CloneImage image = Decoded(first, DefaultSetData2());
        int option = ReceiverSettings::kNoOption, decoded = 0, encoded = 0;
        if (byte <= 8 && byte % 2 == 0)
            option = 0;
        else if (byte <= 9 || byte == 10 || byte == 13 || byte == 15)
            option = decoded = encoded = 1;
        else if (byte == 11 || byte == 12 || byte == 14 || byte == 16)
            option = 11, decoded = 0x11, encoded = 0x0B;
        EXPECT_EQ(image.Settings.operatingMode, option) << byte;
        EXPECT_EQ(image.SetData1.Byte(4), decoded) << byte;
        EncodeSettings(image);
        EXPECT_EQ(image.SetData1.Byte(4), encoded) << byte;
    }
}

TEST(Settings, UnusedSwitchBitsAreDropped)
{
    CloneImage image = Decoded(DefaultSetData1(0), MemoryBlock("00006000000000002490CFFFFFFFFFFF"));
    EncodeSettings(image);
    EXPECT_EQ(image.SetData2.Text(), "0000600000000000000000FFFFFFFFFF");
}

TEST(Settings, CountByteIsKeptFromTheThirdModelOn)
{
    for (int model = 0; model <= 4; ++model) {
        MemoryBlock first = DefaultSetData1(0), second = DefaultSetData2();
        first.SetByte(1, model);
        second.SetByte(2, 0x17);
        CloneImage image = Decoded(first, second);
        EXPECT_EQ(image.SetData2.Byte(2), 0x17);
        EncodeSettings(image);
        EXPECT_EQ(image.SetData2.Byte(2), model < 2 ? 0x60 : 0x17);
        EXPECT_EQ(image.SetData1.Byte(1), model);
        EXPECT_EQ(image.ModelNo(), model > 3 ? 3 : model);
    }
}

}  // namespace
}  // namespace rqm5
