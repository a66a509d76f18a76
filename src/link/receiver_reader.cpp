#include "link/receiver_reader.h"

#include <algorithm>
#include <vector>

#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

using enum TransferResult;

int ProgressMaximum(RowRange rows)
{
    return std::max(0, rows.count - 1);
}

}  // namespace

TransferResult ReceiverReader::ReadBlock(const MemoryArea& area, int index, MemoryBlock& block)
{
    const BlockResult read = blocks_.Read(area.AddressOf(index), block);
    if (read.problem)
        observer_.Message(*read.problem);
    if (read.result == Done)
        observer_.BlockRead(area.AddressOf(index), block);
    return read.result;
}

void ReceiverReader::Store(const MemoryArea& area, int first, std::span<const MemoryBlock> blocks)
{
    area.decode(image_, first, blocks);
    hasStored_ = true;
}

TransferResult ReceiverReader::ReadArea(Area id)
{
    const MemoryArea& area = AreaOf(id);
    std::vector<MemoryBlock> blocks(static_cast<std::size_t>(area.blocks));
    for (int index = 0; MemoryBlock & block : blocks)
        if (const TransferResult result = ReadBlock(area, index++, block); result != Done)
            return result;
    Store(area, 0, blocks);
    observer_.Stored();
    return Done;
}

TransferResult ReceiverReader::ReadBankPage()
{
    const TransferResult result = ReadArea(Area::BankSizes);
    return result == Done ? ReadArea(Area::Links) : result;
}

TransferResult ReceiverReader::ReadMemory(int selector)
{
    // The bank sizes that arrive may change this maximum; it is told again then.
    observer_.ProgressStarted(ProgressMaximum(TransferRows(image_, selector)));
    TransferResult result = ReadFlags();
    if (result == Done)
        result = ReadBankPage();
    if (result == Done)
        result = ReadChannels(TransferRows(image_, selector));
    observer_.ProgressEnded();
    return result;
}

TransferResult ReceiverReader::ReadChannels(RowRange rows)
{
    const MemoryArea& area = AreaOf(Area::Channels);
    observer_.ProgressStarted(ProgressMaximum(rows));
    for (int row = rows.first; row <= rows.Last(); ++row) {
        observer_.ProgressMoved(row - rows.first, row);
        MemoryBlock block;
        if (const TransferResult result = ReadBlock(area, row, block); result != Done)
            return result;
        Store(area, row, {&block, 1});
    }
    return Done;
}

TransferResult ReceiverReader::ReadSettings()
{
    const TransferResult result = ReadArea(Area::Settings);
    return result == Done ? ReadVfoRows() : result;
}

TransferResult ReceiverReader::ReadVfoRows()
{
    const MemoryArea& area = AreaOf(Area::Vfo);
    for (int row = 0; row < area.blocks; ++row) {
        MemoryBlock block;
        if (const TransferResult result = ReadBlock(area, row, block); result != Done)
            return result;
        Store(area, row, {&block, 1});
    }
    observer_.Stored();
    return Done;
}

TransferResult ReceiverReader::ReadAll()
{
    const TransferResult settings = ReadSettings();
    if (settings == Cancelled)
        return settings;
    observer_.GroupChosen(kSelectAll);
    const TransferResult memory = ReadMemory(kSelectAll);
    return memory == Done ? settings : memory;
}

TransferResult ReceiverReader::Read(const TransferScope& scope)
{
    auto result = Done;
    if (scope.settings)
        result = ReadSettings();
    // What is kept of a whole read only gains nothing by going on after a failure.
    if (scope.memory && result == Done)
        result = ReadMemory(scope.selector);
    if (!scope.memory && scope.banks && result == Done)
        result = ReadBankPage();
    return result;
}

}  // namespace rqm5
