#include "vfo/region_presets.h"

#include <vector>

#include "image/channel_record.h"

namespace rqm5 {
namespace {

constexpr int kFirstAddress = 0x0560;
constexpr int kBroadcastEntries = 6;
constexpr int kMissingChannel = 30;  ///< variant 1 has no channel 30 and leaves its block alone

struct BroadcastBand
{
    int mode;
    int step;
    double low, high;  ///< MHz; the start frequency is the lower edge
};

/// Consecutive television channels: the first one's sound carrier and the spacing, in MHz.
struct ChannelRun
{
    int first, last;
    double frequency, spacing;
};

struct Variant
{
    std::array<BroadcastBand, 2> broadcast;
    int constant;  ///< last byte of a television block; its meaning is the receiver's
    std::vector<ChannelRun> television;
};

const std::array<Variant, kPresetVariants>& Variants()
{
    static const std::array<Variant, kPresetVariants> variants = {{
        {{{{1, 0, 0.531, 1.620}, {2, 11, 76.1, 89.9}}},
         0x3D,
         {{1, 3, 95.75, 6}, {4, 7, 175.75, 6}, {8, 12, 197.75, 6}, {13, 62, 475.75, 6}}},
        {{{{1, 0, 0.522, 1.620}, {2, 11, 87.5, 107.9}}},
         0x3B,
         {{2, 4, 53.75, 7}, {5, 12, 180.75, 7}, {21, 69, 476.75, 8}}},
        {{{{1, 4, 0.530, 1.700}, {2, 13, 88.1, 107.9}}},
         0x43,
         {{2, 4, 59.75, 6}, {5, 6, 81.75, 6}, {7, 13, 179.75, 6}, {14, 69, 475.75, 6}}},
    }};
    return variants;
}

MemoryBlock PresetBlock(double frequency, int mode, int step)
{
    constexpr int kSecretCode = 8;
    constexpr int kToneCode = 8;
    return EncodeNumbers(
        {frequency, double(mode), double(step), 0, kSecretCode, kCarrierJr, kToneCode, 0, 0});
}

std::string WriteCommand(int address, const MemoryBlock& block)
{
    return "QT~F" + HexAddress(address) + "W" + block.String();
}

int AddBroadcast(const Variant& variant, std::array<std::string, kPresetEntries>& commands)
{
    std::size_t entry = 0;
    for (const BroadcastBand& band : variant.broadcast)
        for (const double frequency : {band.low, band.high, band.low}) {
            const int address = kFirstAddress + static_cast<int>(entry) * 0x10;
            commands[entry++] = WriteCommand(address, PresetBlock(frequency, band.mode, band.step));
        }
    return kFirstAddress + kBroadcastEntries * 0x10;
}

void AddTelevision(int variantIndex, int address, std::array<std::string, kPresetEntries>& commands)
{
    constexpr int kWfm = 2;
    constexpr int kStep5kHz = 1;
    const Variant& variant = Variants()[static_cast<std::size_t>(variantIndex)];
    std::size_t entry = kBroadcastEntries;
    for (const ChannelRun& run : variant.television)
        for (int channel = run.first; channel <= run.last; ++channel, address += 0x10) {
            if (variantIndex == 1 && channel == kMissingChannel)
                continue;
            MemoryBlock block =
                PresetBlock(run.frequency + run.spacing * (channel - run.first), kWfm, kStep5kHz);
            block.SetByte(14, channel);
            block.SetByte(15, variant.constant);
            commands[entry++] = WriteCommand(address, block);
        }
}

}  // namespace

PresetTable InitPriset()
{
    PresetTable commands;
    for (int variant = 0; variant < kPresetVariants; ++variant) {
        const auto index = static_cast<std::size_t>(variant);
        const int address = AddBroadcast(Variants()[index], commands[index]);
        AddTelevision(variant, address, commands[index]);
    }
    return commands;
}

int PresetVariant(int model)
{
    return model == 0 || model == 1 ? model : 2;
}

}  // namespace rqm5
