#include "link/receiver_reader.h"

#include <algorithm>

#include "image/channel_record.h"
#include "image/flag_bits.h"
#include "link/both_parts.h"
#include "link/memory_map.h"
#include "settings/settings_codec.h"

namespace rqm5 {
namespace {

using enum TransferResult;

int ProgressMaximum(RowRange rows)
{
    return std::max(0, rows.count - 1);
}

}  // namespace

TransferResult ReceiverReader::ReadBank()
{
    TransferResult result = Done;
    for (std::size_t i = 0; i < image_.BankData.size() && result == Done; ++i)
        result = blocks_.Read(BlockAddress(kBankAddress, static_cast<int>(i)), image_.BankData[i]);
    return result;
}

TransferResult ReceiverReader::ReadBankPage()
{
    TransferResult result = ReadBank();
    if (result != Done)
        return result;
    DecodeBankData(image_);
    observer_.Refresh(Changed::BankLayout);
    result = blocks_.Read(kLinkAddress, image_.BankFlagData);
    if (result != Done)
        return result;
    DecodeBankFlagData(image_);
    observer_.Refresh(Changed::BankLinks);
    return Done;
}

TransferResult ReceiverReader::ReadFlags()
{
    // Decoded only when all have arrived: a flag read that breaks off leaves every flag as it was.
    TransferResult result = Done;
    for (std::size_t i = 0; i < image_.ExtraData.size() && result == Done; ++i)
        result = blocks_.Read(BlockAddress(kFlagAddress, static_cast<int>(i)), image_.ExtraData[i]);
    if (result == Done)
        DecodeExtraData(image_);
    return result;
}

TransferResult ReceiverReader::ReadMemory(int selector)
{
    // The bank sizes that arrive may change this maximum; it is told again then.
    observer_.ProgressStarted(ProgressMaximum(TransferRows(image_, selector)));
    TransferResult result = ReadFlags();
    const bool hasNewFlags = result == Done;
    if (result == Done)
        result = ReadBankPage();
    if (result == Done)
        result = ReadChannels(TransferRows(image_, selector));
    // A cancelled read leaves rows in the image that no file holds, just as a whole one does.
    if (result == Done || (result == Cancelled && hasNewFlags))
        image_.DataChanged = true;
    if (result != Failed)
        observer_.Refresh(Changed::Memory);
    observer_.ProgressEnded();
    return result;
}

TransferResult ReceiverReader::ReadChannels(RowRange rows)
{
    observer_.ProgressStarted(ProgressMaximum(rows));
    for (int row = rows.first; row <= rows.Last(); ++row) {
        observer_.ProgressMoved(row - rows.first, row);
        MemoryBlock block;
        const TransferResult result = blocks_.Read(BlockAddress(kChannelAddress, row), block);
        if (result != Done)
            return result;
        if (!DecodeMemoryBlock(image_, block, row))
            ClearMemoryRow(image_, row);
    }
    return Done;
}

TransferResult ReceiverReader::ReadSettings()
{
    TransferResult result = blocks_.Read(kSettings1Address, image_.SetData1);
    if (result == Done)
        result = blocks_.Read(kSettings2Address, image_.SetData2);
    if (result != Done)
        return result;
    DecodeSettings(image_);
    observer_.Refresh(Changed::Settings);
    result = ReadVfoRows();
    if (result != Failed) {
        image_.DataChanged = true;
        observer_.Refresh(Changed::Vfo);
    }
    return result;
}

TransferResult ReceiverReader::ReadVfoRows()
{
    for (int row = 0; row < kVfoRows; ++row) {
        MemoryBlock block;
        const TransferResult result = blocks_.Read(BlockAddress(kVfoAddress, row), block);
        if (result != Done)
            return result;
        DecodeVfoBlock(image_, block, row);
    }
    return Done;
}

TransferResult ReceiverReader::ReadAll()
{
    return RunBothParts(
        observer_, [this] { return ReadSettings(); }, [this] { return ReadMemory(kSelectAll); });
}

}  // namespace rqm5
