#include "settings/settings_codec.h"

#include <algorithm>

namespace rqm5 {
namespace {

constexpr int kBlockMarker = 0xA5;
constexpr int kModelByte = 1;
constexpr int kModeByte = 4;
constexpr int kCountByte = 2;
constexpr int kBatteryByte = 3;
constexpr int kFixedCount = 0x60;

/// A setting that is the value of one byte.
struct ByteField
{
    int block;
    int byte;
    int highest;
    int repair;  ///< replaces a byte above the highest
    int ReceiverSettings::*value;
};

constexpr ByteField kByteFields[] = {
    {1, kModelByte, 4, 0x00, &ReceiverSettings::model}, {1, 14, 50, 0x1E, &ReceiverSettings::volume},
    {1, 15, 9, 0x03, &ReceiverSettings::squelch},       {2, 4, 2, 0x01, &ReceiverSettings::lamp},
    {2, 5, 3, 0x00, &ReceiverSettings::autoPowerOff},   {2, 6, 4, 0x02, &ReceiverSettings::bugLevel},
};

/// A setting that is one bit of SetData2; bit position 1 is the most significant.
struct BitField
{
    int byte;
    int position;
    bool ReceiverSettings::*flag;
    int ReceiverSettings::*option;

    int Mask() const { return 0x80 >> (position - 1); }
};

constexpr BitField kBitFields[] = {
    {8, 1, &ReceiverSettings::keyLock, nullptr},         {8, 2, &ReceiverSettings::writeProtect, nullptr},
    {8, 4, &ReceiverSettings::earphoneAntenna, nullptr}, {8, 5, &ReceiverSettings::beep, nullptr},
    {8, 7, &ReceiverSettings::attenuator, nullptr},      {8, 8, &ReceiverSettings::bell, nullptr},
    {9, 2, nullptr, &ReceiverSettings::scanMode},        {9, 3, &ReceiverSettings::autoStep, nullptr},
    {9, 7, &ReceiverSettings::barAntennaSw, nullptr},    {9, 8, &ReceiverSettings::barAntennaAm, nullptr},
    {10, 3, nullptr, &ReceiverSettings::keyFunction},    {10, 4, nullptr, &ReceiverSettings::moniKey},
};

/// Operating modes by what the decoder accepts. A decoded Preset is written back as 11 hex while the
/// encoder writes 0B, because files and receivers in use hold both.
struct OperatingMode
{
    int option;
    int decoded;  ///< byte that decoding writes back
    int encoded;
    std::array<int, 8> bytes;  ///< bytes that mean this mode; unused places repeat the first
};

constexpr OperatingMode kOperatingModes[] = {
    {0, 0x00, 0x00, {0, 2, 4, 6, 8, 0, 0, 0}},
    {1, 0x01, 0x01, {1, 3, 5, 7, 9, 10, 13, 15}},
    {11, 0x11, 0x0B, {11, 12, 14, 16, 11, 11, 11, 11}},
};

/// \return the option that the byte means; the byte is normalised
int DecodeOperatingMode(MemoryBlock& block)
{
    const int byte = block.Byte(kModeByte);
    for (const OperatingMode& mode : kOperatingModes)
        if (std::find(mode.bytes.begin(), mode.bytes.end(), byte) != mode.bytes.end()) {
            block.SetByte(kModeByte, mode.decoded);
            return mode.option;
        }
    block.SetByte(kModeByte, 0);
    return ReceiverSettings::kNoOption;
}

int EncodedOperatingMode(int option)
{
    for (const OperatingMode& mode : kOperatingModes)
        if (mode.option == option)
            return mode.encoded;
    return 0;
}

int RepairedByte(MemoryBlock& block, int byte, int highest, int repair)
{
    if (block.Byte(byte) > highest)
        block.SetByte(byte, repair);
    return block.Byte(byte);
}

/// The settings that are whole bytes of a block, the first or the second.
void EncodeBytes(const ReceiverSettings& settings, int number, MemoryBlock& block)
{
    for (const ByteField& field : kByteFields)
        if (field.block == number)
            block.SetByte(field.byte, settings.*field.value);
}

void EncodeBits(const ReceiverSettings& settings, MemoryBlock& block)
{
    for (const BitField& field : kBitFields) {
        const bool isSet = field.flag != nullptr ? settings.*field.flag : settings.*field.option != 0;
        if (isSet)
            block.SetByte(field.byte, block.Byte(field.byte) | field.Mask());
    }
}

void DecodeBits(const MemoryBlock& block, ReceiverSettings& settings)
{
    for (const BitField& field : kBitFields) {
        const bool isSet = block.Bit(field.byte, field.position);
        if (field.flag != nullptr)
            settings.*field.flag = isSet;
        else
            settings.*field.option = isSet ? 1 : 0;
    }
}

}  // namespace

MemoryBlock DefaultSetData1(int model)
{
    MemoryBlock block("A500FF8100060000FFFFFFFF00011E03");
    block.SetByte(1, RegionNumber(model));
    return block;
}

MemoryBlock DefaultSetData2()
{
    return MemoryBlock("0000600101000200482300FFFFFFFFFF");
}

SettingsBlocks DecodeSettings(CloneImage& image, SettingsBlocks blocks)
{
    ReceiverSettings& settings = image.Settings();
    if (blocks.SetData1.Text().substr(0, 2) != HexByte(kBlockMarker))
        blocks.SetData1 = DefaultSetData1(settings.model);
    for (const ByteField& field : kByteFields) {
        MemoryBlock& block = field.block == 1 ? blocks.SetData1 : blocks.SetData2;
        settings.*field.value = RepairedByte(block, field.byte, field.highest, field.repair);
    }
    settings.operatingMode = DecodeOperatingMode(blocks.SetData1);
    settings.batterySave = RepairedByte(blocks.SetData2, kBatteryByte, 1, 0x01) != 0;
    settings.passCount = blocks.SetData2.HasByte(kCountByte) ? blocks.SetData2.Byte(kCountByte) : kFixedCount;
    DecodeBits(blocks.SetData2, settings);
    return blocks;
}

std::optional<int> ModelOf(const MemoryBlock& SetData1)
{
    const bool isMarked = SetData1.HasByte(0) && SetData1.Byte(0) == kBlockMarker;
    const int model = SetData1.HasByte(kModelByte) ? SetData1.Byte(kModelByte) : -1;
    const bool isKnown = model >= 0 && model < static_cast<int>(ModelNames().size());
    return isMarked && isKnown ? std::optional(model) : std::nullopt;
}

std::vector<int> SettingsIn(int block, int byte, int bits)
{
    std::vector<int> settings;
    const auto add = [&](int ofBlock, int ofByte, int setting) {
        if (block == ofBlock && byte == ofByte)
            settings.push_back(setting);
    };
    for (const ByteField& field : kByteFields)
        add(field.block, field.byte, SettingIndex(field.value));
    add(1, kModeByte, SettingIndex(&ReceiverSettings::operatingMode));
    add(2, kCountByte, SettingIndex(&ReceiverSettings::passCount));
    add(2, kBatteryByte, SettingIndex(&ReceiverSettings::batterySave));
    for (const BitField& field : kBitFields)
        if ((bits & field.Mask()) != 0)
            add(2, field.byte, field.flag != nullptr ? SettingIndex(field.flag) : SettingIndex(field.option));
    return settings;
}

MemoryBlock SetData1(const CloneImage& image)
{
    const ReceiverSettings& settings = image.Settings();
    MemoryBlock block = DefaultSetData1(settings.model);
    block.SetByte(kModeByte, EncodedOperatingMode(settings.operatingMode));
    EncodeBytes(settings, 1, block);
    return block;
}

MemoryBlock SetData2(const CloneImage& image)
{
    const ReceiverSettings& settings = image.Settings();
    MemoryBlock block("0000600000000000000000FFFFFFFFFF");
    // The count byte belongs to the memory write. Some models have a fixed value for it; the
    // others keep what came with the block.
    block.SetByte(kCountByte, RegionOf(settings.model).hasFixedPassCount ? kFixedCount : settings.passCount);
    block.SetByte(kBatteryByte, settings.batterySave ? 1 : 0);
    EncodeBytes(settings, 2, block);
    EncodeBits(settings, block);
    return block;
}

void ResetSettings(CloneImage& image)
{
    DecodeSettings(image, {DefaultSetData1(image.Settings().model), DefaultSetData2()});
}

}  // namespace rqm5
