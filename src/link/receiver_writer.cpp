#include "link/receiver_writer.h"

#include <algorithm>

#include "image/channel_record.h"
#include "image/flag_bits.h"
#include "link/both_parts.h"
#include "link/memory_map.h"
#include "memory/search_pass.h"
#include "settings/settings_codec.h"
#include "vfo/region_presets.h"

namespace rqm5 {

using enum TransferResult;

template <std::size_t N>
TransferResult ReceiverWriter::WriteBlocks(int firstAddress, const std::array<MemoryBlock, N>& blocks)
{
    TransferResult result = Done;
    for (std::size_t i = 0; i < N && result == Done; ++i)
        result = blocks_.Write(BlockAddress(firstAddress, static_cast<int>(i)), blocks[i]);
    return result;
}

TransferResult ReceiverWriter::WriteBankPage()
{
    const TransferResult result = WriteBanks();
    if (result != Done)
        return result;
    observer_.Refresh(Changed::BankLayout);
    observer_.Refresh(Changed::Memory);
    return WriteLinks();
}

TransferResult ReceiverWriter::WriteBanks()
{
    EncodeBankData(image_);
    return WriteBlocks(kBankAddress, image_.BankData);
}

TransferResult ReceiverWriter::WriteLinks()
{
    EncodeBankFlagData(image_);
    return blocks_.Write(kLinkAddress, image_.BankFlagData);
}

TransferResult ReceiverWriter::WriteMemory(int selector)
{
    const RowRange rows = TransferRows(image_, selector);
    observer_.ProgressStarted(std::max(0, rows.count - 1));
    const TransferResult result = WriteMemoryBlocks(selector, rows);
    observer_.ProgressEnded();
    return result;
}

TransferResult ReceiverWriter::WriteMemoryBlocks(int selector, RowRange rows)
{
    TransferResult result = WriteBanks();
    if (result == Done) {
        observer_.Refresh(Changed::BankLayout);
        result = WriteLinks();
    }
    if (result == Done)
        result = MergeFlags(rows);
    if (result == Done && (selector == kSelectSearchPass || selector == kSelectAll))
        result = WriteSearchPass();
    return result == Done ? WriteChannels(rows) : result;
}

TransferResult ReceiverWriter::MergeFlags(RowRange rows)
{
    const auto flags = image_.MemEnable;
    const TransferResult result = reader_.ReadFlags();
    if (result != Done)
        return result;
    std::copy_n(flags.begin() + rows.first, rows.count, image_.MemEnable.begin() + rows.first);
    if (image_.MemEnable != flags)
        observer_.Refresh(Changed::Memory);
    EncodeExtraData(image_);
    return WriteBlocks(kFlagAddress, image_.ExtraData);
}

TransferResult ReceiverWriter::WriteSearchPass()
{
    BuildPassData(image_);
    TransferResult result = WriteBlocks(kPassAddress, image_.PassData);
    // The count goes into the block as the receiver holds it, not as the image does.
    MemoryBlock settings;
    if (result == Done)
        result = blocks_.Read(kSettings2Address, settings);
    if (result != Done)
        return result;
    settings.SetByte(kPassCountByte, SearchPassCount(image_));
    return blocks_.Write(kSettings2Address, settings);
}

TransferResult ReceiverWriter::WriteChannels(RowRange rows)
{
    for (int row = rows.first; row <= rows.Last(); ++row) {
        observer_.ProgressMoved(row - rows.first, row);
        const TransferResult result =
            blocks_.Write(BlockAddress(kChannelAddress, row), EncodeMemoryRow(image_, row));
        if (result != Done)
            return result;
    }
    return Done;
}

TransferResult ReceiverWriter::WriteSettings()
{
    EncodeSettings(image_);
    TransferResult result = blocks_.Write(kSettings1Address, image_.SetData1);
    if (result == Done)
        result = blocks_.Write(kSettings2Address, image_.SetData2);
    if (result == Done)
        result = WriteVfoRows();
    return result == Done ? WritePresets() : result;
}

TransferResult ReceiverWriter::WriteVfoRows()
{
    TransferResult result = Done;
    for (int row = 0; row < kVfoRows && result == Done; ++row)
        result = blocks_.Write(BlockAddress(kVfoAddress, row), EncodeVfoRow(image_, row));
    return result;
}

TransferResult ReceiverWriter::WritePresets()
{
    static const PresetTable PresetCmd = InitPriset();
    const auto variant = static_cast<std::size_t>(PresetVariant(image_.Settings.model));
    TransferResult result = Done;
    for (std::size_t i = 0; i < static_cast<std::size_t>(kPresetCount[variant]) && result == Done; ++i)
        result = blocks_.WritePrepared(PresetCmd[variant][i]);
    return result;
}

TransferResult ReceiverWriter::WriteAll()
{
    return RunBothParts(
        observer_, [this] { return WriteSettings(); }, [this] { return WriteMemory(kSelectAll); });
}

}  // namespace rqm5
