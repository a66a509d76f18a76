#include "link/block_meaning.h"

#include <array>
#include <optional>

#include "image/channel_record.h"
#include "link/memory_map.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

struct AddressRange
{
    int first;
    int last;
    std::string_view name;
};

constexpr AddressRange kRanges[] = {
    {kSettings1Address, kSettings1Address, "settings 1"},
    {kSettings2Address, kSettings2Address, "settings 2"},
    {kBankAddress, 0x0120, "bank sizes"},
    {kFlagAddress, 0x0250, "enable flags"},
    {kLinkAddress, kLinkAddress, "bank links"},
    {kPassAddress, 0x02E0, "list of Search Pass channels"},
    {kPresetAddress, 0x09F0, "region presets"},
};

constexpr std::array<std::string_view, kNumberColumns> kFieldNames = {
    "Frequency", "Mode", "Step", "Option", "Secret code", "Carrier", "Tone", "Shift", "Shift frequency"};

std::optional<int> VfoRowAt(int address)
{
    const int row = (address - kVfoAddress) / 0x10;
    return address >= kVfoAddress && row < kVfoRows ? std::optional<int>(row) : std::nullopt;
}

}  // namespace

std::string BlockName(const CloneImage& image, int address)
{
    if (const auto row = VfoRowAt(address))
        return VfoRowName(*row);
    if (const int row = MemoryRowAt(address); row >= 0)
        return RowName(image, row);
    for (const AddressRange& range : kRanges)
        if (address >= range.first && address <= range.last)
            return std::string(range.name);
    return {};
}

bool HoldsFields(int address)
{
    return VfoRowAt(address) || MemoryRowAt(address) >= 0;
}

std::vector<BlockField> BlockFields(int address, const MemoryBlock& block)
{
    const RowKind kind = VfoRowAt(address) ? RowKind::Vfo : RowKind::Memory;
    ChannelRecord record;
    if (!HoldsFields(address) || !DecodeBlock(block, kind, record))
        return {};
    std::vector<BlockField> fields;
    for (std::size_t column = 0; column < kFieldNames.size(); ++column)
        fields.push_back({std::string(kFieldNames[column]), record.texts[column]});
    if (kind == RowKind::Memory)
        fields.push_back({"Skip", static_cast<int>(record.numbers[kOption]) % 16 != 0 ? "yes" : "no"});
    return fields;
}

}  // namespace rqm5
