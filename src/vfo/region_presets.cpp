#include "vfo/region_presets.h"

#include <array>

#include "image/channel_block.h"
#include "image/number_text.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

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
    int constant;        ///< last byte of a television block; its meaning is the receiver's
    int missingChannel;  ///< has no entry, and its block is left alone; 0 where there is none
    std::vector<ChannelRun> television;
};

const std::array<Variant, kPresetVariants>& Variants()
{
    static const std::array<Variant, kPresetVariants> variants = {{
        {{{{1, 0, 0.531, 1.620}, {2, 11, 76.1, 89.9}}},
         0x3D,
         0,
         {{1, 3, 95.75, 6}, {4, 7, 175.75, 6}, {8, 12, 197.75, 6}, {13, 62, 475.75, 6}}},
        {{{{1, 0, 0.522, 1.620}, {2, 11, 87.5, 107.9}}},
         0x3B,
         30,
         {{2, 4, 53.75, 7}, {5, 12, 180.75, 7}, {21, 69, 476.75, 8}}},
        {{{{1, 4, 0.530, 1.700}, {2, 13, 88.1, 107.9}}},
         0x43,
         0,
         {{2, 4, 59.75, 6}, {5, 6, 81.75, 6}, {7, 13, 179.75, 6}, {14, 69, 475.75, 6}}},
    }};
    return variants;
}

MemoryBlock BlockOf(double frequency, int mode, int step)
{
    ChannelContents channel;
    channel.frequency = Hertz(frequency);
    channel.mode = static_cast<std::uint8_t>(mode);
    channel.step = static_cast<std::uint8_t>(step);
    channel.secret = 8;
    channel.carrier = kCarrierJr;
    channel.tone = 8;
    return EncodeChannel(channel);
}

void AddBroadcast(const Variant& variant, std::vector<PresetBlock>& blocks)
{
    int place = 0;
    for (const BroadcastBand& band : variant.broadcast)
        for (const double frequency : {band.low, band.high, band.low})
            blocks.push_back({place++, BlockOf(frequency, band.mode, band.step)});
}

void AddTelevision(const Variant& variant, std::vector<PresetBlock>& blocks)
{
    constexpr int kWfm = 2;
    constexpr int kStep5kHz = 1;
    int place = blocks.back().place + 1;
    for (const ChannelRun& run : variant.television)
        for (int channel = run.first; channel <= run.last; ++channel, ++place) {
            if (channel == variant.missingChannel)
                continue;
            const double frequency = run.frequency + run.spacing * (channel - run.first);
            MemoryBlock block = BlockOf(frequency, kWfm, kStep5kHz);
            block.SetByte(14, channel);
            block.SetByte(15, variant.constant);
            blocks.push_back({place, block});
        }
}

std::vector<PresetBlock> BlocksOf(const Variant& variant)
{
    std::vector<PresetBlock> blocks;
    AddBroadcast(variant, blocks);
    AddTelevision(variant, blocks);
    return blocks;
}

}  // namespace

const std::vector<PresetBlock>& InitPriset(int variant)
{
    static const std::array<std::vector<PresetBlock>, kPresetVariants> blocks = {
        BlocksOf(Variants()[0]), BlocksOf(Variants()[1]), BlocksOf(Variants()[2])};
    return blocks.at(static_cast<std::size_t>(variant));
}

int PresetVariant(int model)
{
    return RegionOf(model).presets;
}

}  // namespace rqm5
