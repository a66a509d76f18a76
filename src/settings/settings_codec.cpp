#include "settings/settings_codec.h"

#include <algorithm>

namespace rqm5 {
namespace {

constexpr int kBlockMarker = 0xA5;
constexpr std::size_t kModeByte = 4;
constexpr std::size_t kCountByte = 2;

/// A setting that is the value of one byte.
struct ByteField
{
    int block;
    std::size_t byte;
    int highest;
    int repair;  ///< replaces a byte above the highest
    int ReceiverSettings::*value;
};

constexpr ByteField kByteFields[] = {
    {1, 1, 4, 0x00, &ReceiverSettings::model},        {1, 14, 50, 0x1E, &ReceiverSettings::volume},
    {1, 15, 9, 0x03, &ReceiverSettings::squelch},     {2, 4, 2, 0x01, &ReceiverSettings::lamp},
    {2, 5, 3, 0x00, &ReceiverSettings::autoPowerOff}, {2, 6, 4, 0x02, &ReceiverSettings::bugLevel},
};

/// A setting that is one bit of SetData2; bit position 1 is the most significant.
struct BitField
{
    std::size_t byte;
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
/// encoder writes 0B; deliberate, for every file and receiver in use has it so.
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

void DecodeOperatingMode(CloneImage& image)
{
    const int byte = image.SetData1.Byte(kModeByte);
    for (const OperatingMode& mode : kOperatingModes)
        if (std::find(mode.bytes.begin(), mode.bytes.end(), byte) != mode.bytes.end()) {
            image.Settings.operatingMode = mode.option;
            image.SetData1.SetByte(kModeByte, mode.decoded);
            return;
        }
    image.Settings.operatingMode = ReceiverSettings::kNoOption;
    image.SetData1.SetByte(kModeByte, 0);
}

int EncodedOperatingMode(int option)
{
    for (const OperatingMode& mode : kOperatingModes)
        if (mode.option == option)
            return mode.encoded;
    return 0;
}

int RepairedByte(MemoryBlock& block, std::size_t byte, int highest, int repair)
{
    if (block.Byte(byte) > highest)
        block.SetByte(byte, repair);
    return block.Byte(byte);
}

MemoryBlock EncodedSetData2(const ReceiverSettings& settings, const MemoryBlock& held)
{
    MemoryBlock block("0000600000000000000000FFFFFFFFFF");
    // The count byte belongs to the memory write. Only the first two models have a fixed value for it;
    // the others keep what the block holds.
    if (settings.model > 1 && held.HasByte(kCountByte))
        block.SetByte(kCountByte, held.Byte(kCountByte));
    block.SetByte(3, settings.batterySave ? 1 : 0);
    for (const BitField& field : kBitFields) {
        const bool isSet = field.flag != nullptr ? settings.*field.flag : settings.*field.option != 0;
        if (isSet)
            block.SetByte(field.byte, block.Byte(field.byte) | field.Mask());
    }
    return block;
}

}  // namespace

MemoryBlock DefaultSetData1(int model)
{
    MemoryBlock block("A500FF8100060000FFFFFFFF00011E03");
    block.SetByte(1, model >= 0 && model < 3 ? model : 3);
    return block;
}

MemoryBlock DefaultSetData2()
{
    return MemoryBlock("0000600101000200482300FFFFFFFFFF");
}

void DecodeSettings(CloneImage& image)
{
    if (image.SetData1.Text().substr(0, 2) != HexByte(kBlockMarker))
        image.SetData1 = DefaultSetData1(image.Settings.model);
    for (const ByteField& field : kByteFields) {
        MemoryBlock& block = field.block == 1 ? image.SetData1 : image.SetData2;
        image.Settings.*field.value = RepairedByte(block, field.byte, field.highest, field.repair);
    }
    DecodeOperatingMode(image);
    image.Settings.batterySave = RepairedByte(image.SetData2, 3, 1, 0x01) != 0;
    for (const BitField& field : kBitFields) {
        const bool isSet = image.SetData2.Bit(field.byte, field.position);
        if (field.flag != nullptr)
            image.Settings.*field.flag = isSet;
        else
            image.Settings.*field.option = isSet ? 1 : 0;
    }
}

void EncodeSettings(CloneImage& image)
{
    const ReceiverSettings& settings = image.Settings;
    image.SetData1 = DefaultSetData1(settings.model);
    image.SetData2 = EncodedSetData2(settings, image.SetData2);
    image.SetData1.SetByte(kModeByte, EncodedOperatingMode(settings.operatingMode));
    for (const ByteField& field : kByteFields)
        (field.block == 1 ? image.SetData1 : image.SetData2).SetByte(field.byte, settings.*field.value);
}

void ResetSettings(CloneImage& image)
{
    image.SetData1 = DefaultSetData1(image.Settings.model);
    image.SetData2 = DefaultSetData2();
    DecodeSettings(image);
}

}  // namespace rqm5
