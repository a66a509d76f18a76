#include "fuzz/image_checks.h"

#include "fuzz/require.h"
#include "image/channel_block.h"
#include "image/value_tables.h"
#include "memory/bank_layout.h"

namespace rqm5::fuzz {
namespace {

bool IsIn(int value, int lowest, int highest)
{
    return value >= lowest && value <= highest;
}

}  // namespace

bool IsPicked(std::string_view input, std::uint32_t oneIn)
{
    // FNV-1a
    std::uint32_t hash = 2166136261U;
    for (const char c : input)
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return hash % oneIn == 0;
}

ReceiverSettings AsSent(ReceiverSettings settings)
{
    if (settings.operatingMode == ReceiverSettings::kNoOption)
        settings.operatingMode = 0;
    if (settings.model < 2)
        settings.passCount = 0x60;
    return settings;
}

void RequireEncodable(const ChannelContents& contents, RowKind kind)
{
    ChannelContents read = DecodeBlock(EncodeChannel(contents), kind).value_or(ChannelContents());
    // A shift of 0.05 MHz reads back as 0.5 MHz, as receivers in the field have it.
    if (read.frequency != 0)
        read.shiftFrequency = contents.shiftFrequency;
    // The receiver knows the 1 kHz step for VFO rows only.
    if (kind == RowKind::Memory && contents.step == StepName.size() - 1)
        read.step = contents.step;
    // A block does not tell that a file brought its carrier.
    read.isCarrierImported = contents.isCarrierImported;
    Require(read == contents, "imported contents survive as a block");
}

void RequireSoundSettings(const ReceiverSettings& settings)
{
    const int mode = settings.operatingMode;
    Require(mode == 0 || mode == 1 || mode == 11 || mode == ReceiverSettings::kNoOption, "operating mode");
    const bool isInRange =
        IsIn(settings.model, 0, 4) && IsIn(settings.volume, 0, 50) && IsIn(settings.squelch, 0, 9) &&
        IsIn(settings.lamp, 0, 2) && IsIn(settings.autoPowerOff, 0, 3) && IsIn(settings.bugLevel, 0, 4) &&
        IsIn(settings.scanMode, 0, 1) && IsIn(settings.keyFunction, 0, 1) && IsIn(settings.moniKey, 0, 1);
    Require(isInRange, "settings stay in their ranges");
}

void RequireSoundImage(const CloneImage& image)
{
    RequireSoundSettings(image.Settings());
    for (int bank = 0; bank < kBankSizes; ++bank)
        Require(image.BankSize(bank) >= 0, "no bank size is negative");
    Require(TotalBankSize(image) <= kBankRows, "bank sizes never exceed 1000");
    for (int row = 0; row < kVfoRows; ++row)
        Require(!image.VFOData(row).enabled, "VFO rows have no flag");
}

}  // namespace rqm5::fuzz
