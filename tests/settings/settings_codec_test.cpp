#include "settings/settings_codec.h"

#include <gtest/gtest.h>

#include <tuple>

#include "memory/start_image.h"

namespace rqm5 {
namespace {

TEST(Settings, DefaultsOfEachRegionDecodeAndEncodeToThemselves)
{
    for (int model = 0; model < 4; ++model) {
        const CloneImage image = StartUpImage(model);
        ReceiverSettings expected;
        expected.model = model;
        EXPECT_EQ(image.Settings(), expected);
        EXPECT_EQ(SetData1(image).Text(), "A50" + std::to_string(model) + "FF8100060000FFFFFFFF00011E03");
        EXPECT_EQ(SetData2(image).Text(), "0000600101000200482300FFFFFFFFFF");
    }
}

TEST(Settings, InvalidBytesAreRepairedInTheBlock)
{
    constexpr char kFirst[] = "A500FF8100060000FFFFFFFF00011E03";
    constexpr char kSecond[] = "0000600101000200482300FFFFFFFFFF";
    const ReceiverSettings highest = {
        .model = 4, .volume = 50, .squelch = 9, .lamp = 2, .autoPowerOff = 3, .bugLevel = 4};
    // The blocks and what becomes of them: every byte as high as it may be, then one higher, then at its
    // highest, then a block without its marker.
    const std::tuple<const char*, const char*, const char*, const char*, ReceiverSettings> cases[] = {
        {"A504FF8100060000FFFFFFFF00013209", "0000600102030400482300FFFFFFFFFF",
         "A504FF8100060000FFFFFFFF00013209", "0000600102030400482300FFFFFFFFFF", highest},
        {"A505FF8100060000FFFFFFFF0001330A", "0000600203040500482300FFFFFFFFFF", kFirst, kSecond, {}},
        {"A5FFFF8100060000FFFFFFFF0001FFFF", "000060FFFFFFFF00482300FFFFFFFFFF", kFirst, kSecond, {}},
        {"5A04FF8100060000FFFFFFFF00013209",
         kSecond,
         "A502FF8100060000FFFFFFFF00011E03",
         kSecond,
         {.model = 2}},
    };
    for (const auto& [first, second, repairedFirst, repairedSecond, settings] : cases) {
        CloneImage image = StartUpImage(2);
        const SettingsBlocks repaired = DecodeSettings(image, {MemoryBlock(first), MemoryBlock(second)});
        EXPECT_EQ(repaired.SetData1.Text(), repairedFirst);
        EXPECT_EQ(repaired.SetData2.Text(), repairedSecond);
        EXPECT_EQ(image.Settings(), settings) << first;
    }
}

TEST(Settings, OperatingModesNormaliseOneWayAndEncodeAnother)
{
    for (int byte = 0; byte < 256; ++byte) {
        MemoryBlock first = DefaultSetData1(0);
        first.SetByte(4, byte);
        CloneImage image;
        const SettingsBlocks normalised = DecodeSettings(image, {first, DefaultSetData2()});
        int option = ReceiverSettings::kNoOption, decoded = 0, encoded = 0;
        if (byte <= 8 && byte % 2 == 0)
            option = 0;
        else if (byte <= 9 || byte == 10 || byte == 13 || byte == 15)
            option = decoded = encoded = 1;
        else if (byte == 11 || byte == 12 || byte == 14 || byte == 16)
            option = 11, decoded = 0x11, encoded = 0x0B;
        EXPECT_EQ(image.Settings().operatingMode, option) << byte;
        EXPECT_EQ(normalised.SetData1.Byte(4), decoded) << byte;
        EXPECT_EQ(SetData1(image).Byte(4), encoded) << byte;
    }
}

TEST(Settings, UnusedSwitchBitsAreDropped)
{
    CloneImage image;
    DecodeSettings(image, {DefaultSetData1(0), MemoryBlock("0000600000000000249CCFFFFFFFFFFF")});
    EXPECT_EQ(SetData2(image).Text(), "0000600000000000000000FFFFFFFFFF");
}

TEST(Settings, CountByteIsKeptFromTheThirdModelOn)
{
    for (int model = 0; model <= 4; ++model) {
        MemoryBlock first = DefaultSetData1(0), second = DefaultSetData2();
        first.SetByte(1, model);
        second.SetByte(2, 0x17);
        CloneImage image;
        EXPECT_EQ(DecodeSettings(image, {first, second}).SetData2.Byte(2), 0x17);
        EXPECT_EQ(SetData2(image).Byte(2), model < 2 ? 0x60 : 0x17);
        EXPECT_EQ(SetData1(image).Byte(1), model);
        EXPECT_EQ(image.ModelNo(), model > 3 ? 3 : model);
    }
}

}  // namespace
}  // namespace rqm5
