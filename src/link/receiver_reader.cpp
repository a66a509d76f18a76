#include "link/receiver_reader.h"

#include <algorithm>

#include "link/line_notes.h"
#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

using enum TransferResult;

constexpr int kMostShifts = 3;  ///< a line on which replies shift more often is given up
constexpr int kAsks = 3;
constexpr std::size_t kFewBlocks = 16;

int ProgressMaximum(RowRange rows)
{
    return std::max(0, rows.count - 1);
}

}  // namespace

TransferResult ReceiverReader::ReadBlock(const MemoryArea& area, int index, MemoryBlock& block)
{
    if (const auto known = known_.find(area.AddressOf(index)); known != known_.end()) {
        block = known->second;
        read_.push_back({&area, index, block});
        return Done;
    }
    const bool wasInDoubt = blocks_.IsInDoubt();
    const BlockResult read = blocks_.Read(area.AddressOf(index), block);
    if (read.problem)
        observer_.Message(*read.problem);
    if (read.result != Done)
        return read.result;
    observer_.BlockRead(area.AddressOf(index), block);
    if (blocks_.IsInDoubt() && !wasInDoubt)
        doubtful_ = read_.size();
    if (!unharmed_ && (blocks_.IsInDoubt() || !block.IsHex()))
        unharmed_ = image_;
    read_.push_back({&area, index, block});
    return Done;
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
    return Run([this] {
        const TransferResult result = ReadArea(Area::BankSizes);
        return result == Done ? ReadArea(Area::Links) : result;
    });
}

TransferResult ReceiverReader::ReadFlags()
{
    return Run([this] { return ReadArea(Area::Flags); });
}

TransferResult ReceiverReader::ReadMemory(int selector)
{
    // The bank sizes that arrive may change this maximum; it is told again then.
    observer_.ProgressStarted(ProgressMaximum(TransferRows(image_, selector)));
    const TransferResult result = Run([this, selector] { return ReadGroup(selector); });
    observer_.ProgressEnded();
    return result;
}

TransferResult ReceiverReader::ReadGroup(int selector)
{
    TransferResult result = ReadFlags();
    if (result == Done)
        result = ReadBankPage();
    return result == Done ? ReadRows(TransferRows(image_, selector)) : result;
}

TransferResult ReceiverReader::ReadChannels(RowRange rows)
{
    return Run([this, rows] { return ReadRows(rows); });
}

TransferResult ReceiverReader::ReadRows(RowRange rows)
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
    return Run([this] {
        const TransferResult result = ReadArea(Area::Settings);
        return result == Done ? ReadVfoRows() : result;
    });
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
    // The caller keeps only a read that is complete, so going on after a failure is of no use.
    if (scope.memory && result == Done)
        result = ReadMemory(scope.selector);
    if (!scope.memory && scope.banks && result == Done)
        result = ReadBankPage();
    return result;
}

TransferResult ReceiverReader::Run(const std::function<TransferResult()>& sequence)
{
    if (isRunning_)
        return sequence();
    isRunning_ = true;
    blocks_.BeginAnew();
    begin_ = doubtful_ = read_.size();
    unharmed_.reset();
    TransferResult result = sequence();
    if (result == Done)
        result = Mend(sequence);
    known_.clear();
    isRunning_ = false;
    return result;
}

/// Ends an operation whose blocks are through.
TransferResult ReceiverReader::Mend(const std::function<TransferResult()>& sequence)
{
    std::set<int> asked;
    for (int shifts = 0;;) {
        bool mustRunAgain = blocks_.HaveRepliesShifted();
        if (mustRunAgain) {
            if (++shifts > kMostShifts)
                break;
            read_.resize(doubtful_);
        } else if (const TransferResult result = AskAgain(asked, mustRunAgain); result != Done) {
            return result;
        }
        if (observer_.IsCancelled())
            return Cancelled;
        if (!mustRunAgain)
            return Done;
        if (const TransferResult result = Again(sequence); result != Done)
            return result;
    }
    image_ = *unharmed_;
    observer_.Message(ShiftedReplies());
    return Failed;
}

/// Runs an operation again. What was read before and is in no doubt is not asked for again.
TransferResult ReceiverReader::Again(const std::function<TransferResult()>& sequence)
{
    known_.clear();
    for (std::size_t i = begin_; i < read_.size(); ++i)
        known_[read_[i].Address()] = read_[i].block;
    read_.resize(begin_);
    image_ = *unharmed_;
    return sequence();
}

/// Asks up to three times for each block with characters that are no hex digits, but for those that were
/// asked for before. \param hasMended  set when one of them came right
TransferResult ReceiverReader::AskAgain(std::set<int>& asked, bool& hasMended)
{
    std::vector<std::size_t> bad;
    for (std::size_t i = begin_; i < read_.size(); ++i)
        if (!read_[i].block.IsHex() && asked.insert(read_[i].Address()).second)
            bad.push_back(i);
    std::map<std::size_t, MemoryBlock> mended;
    for (int ask = 0; ask < kAsks && !bad.empty(); ++ask) {
        const std::size_t before = bad.size();
        for (const std::size_t i : bad) {
            MemoryBlock block;
            const BlockResult again = blocks_.Read(read_[i].Address(), block);
            if (again.problem)
                observer_.Message(*again.problem);
            if (again.result != Done)
                return again.result;
            if (block.IsHex())
                mended[i] = block;
        }
        std::erase_if(bad, [&mended](std::size_t i) { return mended.contains(i); });
        // A line on which nothing comes right is not asked for minutes.
        if (bad.size() == before && before > kFewBlocks)
            break;
    }
    if (blocks_.HaveRepliesShifted())
        return Done;  // it cannot be told what came right
    for (const auto& [i, block] : mended) {
        read_[i].block = block;
        observer_.BlockRepeated(read_[i].Address());
        observer_.BlockRead(read_[i].Address(), block);
    }
    hasMended = !mended.empty();
    return Done;
}

std::vector<Message> ReceiverReader::Unreadable() const
{
    std::vector<Message> names;
    for (const ReadOnce& read : read_)
        if (!read.block.IsHex())
            names.push_back(read.area->label(image_, read.index));
    return names;
}

std::vector<ExpectedBlock> ReceiverReader::Blocks() const
{
    std::vector<ExpectedBlock> blocks;
    blocks.reserve(read_.size());
    for (const ReadOnce& read : read_)
        blocks.push_back({read.Address(), read.block, MemoryBlock(std::string(kBlockChars, 'F')),
                          read.area->label(image_, read.index)});
    return blocks;
}

}  // namespace rqm5
