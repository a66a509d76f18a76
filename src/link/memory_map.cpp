#include "link/memory_map.h"

#include <algorithm>
#include <array>

#include "image/channel_block.h"
#include "image/flag_bits.h"
#include "memory/bank_layout.h"
#include "memory/row_names.h"
#include "memory/search_pass.h"
#include "settings/settings_codec.h"
#include "vfo/region_presets.h"

namespace rqm5 {
namespace {

using Blocks = std::span<const MemoryBlock>;

/// A name that all blocks of an area share.
template <const char* kName>
Message Shared(const CloneImage& /*image*/, int /*index*/)
{
    return kName;
}

constexpr char kBankSizesName[] = MESSAGE("bank sizes");
constexpr char kFlagsName[] = MESSAGE("enable flags");
constexpr char kLinksName[] = MESSAGE("bank links");
constexpr char kLinksLabel[] = MESSAGE("Bank links");
constexpr char kPassListName[] = MESSAGE("list of Search Pass channels");
constexpr char kPresetsName[] = MESSAGE("region presets");

Message BankSizesLabel(const CloneImage& /*image*/, int index)
{
    constexpr int kSizes = 8;
    const int first = index * kSizes;
    return {MESSAGE("Bank sizes %1 to %2"), {first, std::min(first + kSizes - 1, kUnassigned)}};
}

Message FlagsLabel(const CloneImage& /*image*/, int index)
{
    constexpr int kFlags = 8 * kBlockBytes;
    const int first = index * kFlags;
    return {MESSAGE("Enable flags of rows %1 to %2"), {first, std::min(first + kFlags, kMemoryRows) - 1}};
}

MemoryBlock EncodePreset(const CloneImage& image, int index)
{
    const auto& presets = InitPriset(PresetVariant(image.Settings().model));
    const auto found = std::ranges::find(presets, index, &PresetBlock::place);
    return found != presets.end() ? found->contents : MemoryBlock();
}

void DecodeChannel(CloneImage& image, int row, Blocks blocks)
{
    // A block that holds no channel empties its row, note and flag included.
    if (!DecodeMemoryBlock(image, blocks.front(), row))
        ClearMemoryRow(image, row);
}

const std::array<MemoryArea, 8> kMap = {{
    {Area::Settings, 0x0040, 2, MESSAGE("settings block"), MESSAGE("settings"), 1,
     [](const CloneImage&, int index) { return Message(MESSAGE("Settings %1"), {index + 1}); },
     [](const CloneImage&, int index) { return Message(MESSAGE("settings %1"), {index + 1}); },
     [](const CloneImage& image, int index) { return index == 0 ? SetData1(image) : SetData2(image); },
     [](CloneImage& image, int, Blocks blocks) {
         DecodeSettings(image, {blocks[0], blocks[1]});
     },
     false, std::nullopt},
    {Area::BankSizes, 0x00C0, 7, MESSAGE("bank size block"), MESSAGE("bank sizes"), 1, BankSizesLabel,
     Shared<kBankSizesName>,
     [](const CloneImage& image, int index) { return BankData(image).at(static_cast<std::size_t>(index)); },
     [](CloneImage& image, int, Blocks blocks) { DecodeBankData(image, blocks); }, false, std::nullopt},
    {Area::Flags, 0x01C0, 10, MESSAGE("enable flag block"), MESSAGE("enable flags"), 1, FlagsLabel,
     Shared<kFlagsName>, FlagBlock,
     [](CloneImage& image, int, Blocks blocks) { DecodeExtraData(image, blocks); }, false, std::nullopt},
    {Area::Links, 0x0260, 1, MESSAGE("bank links"), MESSAGE("bank links"), 1, Shared<kLinksLabel>,
     Shared<kLinksName>, [](const CloneImage& image, int) { return BankFlagData(image); },
     [](CloneImage& image, int, Blocks blocks) { DecodeBankFlagData(image, blocks.front()); }, false,
     std::nullopt},
    {Area::PassList, 0x0280, 7, MESSAGE("Search Pass list block"), MESSAGE("Search Pass list"), 1,
     [](const CloneImage&, int index) { return Message(MESSAGE("Search Pass list %1"), {index + 1}); },
     Shared<kPassListName>,
     [](const CloneImage& image, int index) { return PassData(image).at(static_cast<std::size_t>(index)); },
     nullptr, false, std::nullopt},
    {Area::Presets, 0x0560, 74, MESSAGE("region preset"), MESSAGE("region presets"), 1, Shared<kPresetsName>,
     Shared<kPresetsName>, EncodePreset, nullptr, false, std::nullopt},
    {Area::Vfo, 0x0C00, kVfoRows, MESSAGE("VFO band"), MESSAGE("VFO bands"), 0,
     [](const CloneImage&, int index) { return Message(MESSAGE("VFO %1"), {index}); },
     [](const CloneImage&, int index) { return VfoRowName(index); }, EncodeVfoRow,
     [](CloneImage& image, int row, Blocks blocks) { DecodeVfoBlock(image, blocks.front(), row); }, true,
     RowKind::Vfo},
    {Area::Channels, 0x1000, kRadioRows, MESSAGE("row"), MESSAGE("rows"), 0, RowLabel,
     [](const CloneImage& image, int row) { return RowName(image, row); }, EncodeMemoryRow, DecodeChannel,
     true, RowKind::Memory},
}};

}  // namespace

std::span<const MemoryArea> MemoryMap()
{
    return kMap;
}

const MemoryArea& AreaOf(Area id)
{
    return kMap[static_cast<std::size_t>(id)];
}

std::vector<int> BlocksOf(const MemoryArea& area, const CloneImage& image)
{
    std::vector<int> blocks;
    if (area.id == Area::Presets) {
        for (const PresetBlock& preset : InitPriset(PresetVariant(image.Settings().model)))
            blocks.push_back(preset.place);
    } else {
        for (int index = 0; index < area.blocks; ++index)
            blocks.push_back(index);
    }
    return blocks;
}

std::optional<BlockPlace> PlaceOf(int address)
{
    for (const MemoryArea& area : kMap)
        if (address >= area.address && address < area.AddressOf(area.blocks))
            return BlockPlace{&area, (address - area.address) / kBlockBytes};
    return std::nullopt;
}

int MemoryRowAt(int address)
{
    const auto place = PlaceOf(address);
    return place && place->area->id == Area::Channels ? place->index : -1;
}

Message BlockName(const CloneImage& image, int address)
{
    const auto place = PlaceOf(address);
    return place ? place->area->meaning(image, place->index) : Message();
}

bool HoldsFields(int address)
{
    const auto place = PlaceOf(address);
    return place && place->area->rows.has_value();
}

std::vector<BlockField> BlockFields(int address, const MemoryBlock& block)
{
    if (!HoldsFields(address))
        return {};
    const RowKind kind = *PlaceOf(address)->area->rows;
    const auto channel = DecodeBlock(block, kind);
    if (!channel)
        return {};
    std::vector<BlockField> fields;
    for (const Column column : kColumns)
        if (column != kNote)
            fields.push_back({kColumnNames[column], CellText(*channel, kind, kNoRegion, column)});
    if (kind == RowKind::Memory)
        fields.push_back({MESSAGE("Skip"), channel->IsSkipped() ? MESSAGE("yes") : MESSAGE("no")});
    return fields;
}

}  // namespace rqm5
