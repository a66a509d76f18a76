#include "simulator/receiver_memory.h"

#include "image/channel_record.h"
#include "image/flag_bits.h"
#include "link/memory_map.h"
#include "memory/bank_layout.h"
#include "memory/rebuild_blocks.h"
#include "memory/search_pass.h"
#include "settings/settings_codec.h"
#include "vfo/region_presets.h"

namespace rqm5 {
namespace {

template <std::size_t N>
void Put(ReceiverMemory& memory, int address, const std::array<MemoryBlock, N>& blocks)
{
    for (const MemoryBlock& block : blocks) {
        memory.At(address) = block;
        address += static_cast<int>(kBlockBytes);
    }
}

template <std::size_t N>
void Get(const ReceiverMemory& memory, int address, std::array<MemoryBlock, N>& blocks)
{
    for (MemoryBlock& block : blocks) {
        block = memory.At(address);
        address += static_cast<int>(kBlockBytes);
    }
}

void PutPresets(ReceiverMemory& memory, int model)
{
    constexpr std::size_t kAddressAt = 4;
    constexpr std::size_t kDataAt = 9;
    const PresetTable PresetCmd = InitPriset();
    for (const std::string& command : PresetCmd[static_cast<std::size_t>(PresetVariant(model))])
        if (!command.empty())
            memory.At(std::stoi(command.substr(kAddressAt, 4), nullptr, 16)) =
                MemoryBlock(command.substr(kDataAt));
}

void GetRows(const ReceiverMemory& memory, CloneImage& image)
{
    for (int row = 0; row < kVfoRows; ++row)
        DecodeVfoBlock(image, memory.At(BlockAddress(kVfoAddress, row)), row);
    for (int row = 0; row < kRadioRows; ++row)
        if (!DecodeMemoryBlock(image, memory.At(BlockAddress(kChannelAddress, row)), row))
            ClearMemoryRow(image, row);
}

}  // namespace

ReceiverMemory MemoryFromImage(const CloneImage& image)
{
    CloneImage sent = image;
    RebuildBlocks(sent);
    BuildPassData(sent);
    sent.SetData2.SetByte(kPassCountByte, SearchPassCount(sent));
    ReceiverMemory memory;
    memory.At(kSettings1Address) = sent.SetData1;
    memory.At(kSettings2Address) = sent.SetData2;
    memory.At(kLinkAddress) = sent.BankFlagData;
    Put(memory, kBankAddress, sent.BankData);
    Put(memory, kFlagAddress, sent.ExtraData);
    Put(memory, kPassAddress, sent.PassData);
    PutPresets(memory, sent.Settings.model);
    for (int row = 0; row < kVfoRows; ++row)
        memory.At(BlockAddress(kVfoAddress, row)) = EncodeVfoRow(sent, row);
    for (int row = 0; row < kRadioRows; ++row)
        memory.At(BlockAddress(kChannelAddress, row)) = EncodeMemoryRow(sent, row);
    return memory;
}

CloneImage ImageFromMemory(const ReceiverMemory& memory, const CloneImage& notes)
{
    CloneImage image = notes;
    image.SetData1 = memory.At(kSettings1Address);
    image.SetData2 = memory.At(kSettings2Address);
    image.BankFlagData = memory.At(kLinkAddress);
    Get(memory, kBankAddress, image.BankData);
    Get(memory, kFlagAddress, image.ExtraData);
    Get(memory, kPassAddress, image.PassData);
    DecodeSettings(image);
    DecodeBankData(image);
    DecodeBankFlagData(image);
    GetRows(memory, image);
    // Last, because an empty row loses its flag when it is cleared, but the memory may hold it as enabled.
    DecodeExtraData(image);
    return image;
}

}  // namespace rqm5
