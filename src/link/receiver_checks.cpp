#include "link/receiver_checks.h"

#include <algorithm>

#include "image/image_change.h"
#include "link/block_link.h"
#include "link/forwarding_observer.h"
#include "link/line_notes.h"
#include "link/memory_map.h"
#include "link/receiver_reader.h"
#include "memory/bank_layout.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

using enum TransferResult;

constexpr int kMostShifts = 3;
constexpr int kAsks = 3;

/// The window goes on showing its own image while the backup is read into another one.
class BackupObserver : public AftermathObserver
{
  public:
    using AftermathObserver::AftermathObserver;

    void GroupChosen(int /*selector*/) override {}
    void Stored() override {}
};

RowRange RowsToBackUp(const CloneImage& image, const CloneImage& backup, int selector)
{
    return TransferRows(
        image, selector < kBanks && !Difference(image, backup).BankSize.empty() ? kSelectAll : selector);
}

TransferResult ReadGroup(ReceiverReader& reader, const CloneImage& image, const CloneImage& backup,
                         int selector)
{
    return reader.Run([&] {
        TransferResult result = reader.ReadFlags();
        if (result == Done)
            result = reader.ReadBankPage();
        return result == Done ? reader.ReadChannels(RowsToBackUp(image, backup, selector)) : result;
    });
}

/// A backup must be what the receiver holds, digit by digit; else nothing may be overwritten.
TransferResult RefuseUnreadable(const ReceiverReader& reader, TransferObserver& observer)
{
    const std::vector<Message> blocks = reader.Unreadable();
    if (blocks.empty())
        return Done;
    observer.Message(UnreadableBlocks(blocks));
    return Failed;
}

/// Reads blocks back, from a first one on again when replies had shifted.
class BackReader
{
  public:
    BackReader(const std::vector<ExpectedBlock>& expected, RadioLink& link, TransferObserver& observer,
               std::vector<BlockDifference>& differences)
        : expected_(expected), blocks_(link, observer), observer_(observer), differences_(differences)
    {
    }

    TransferResult Run();

  private:
    TransferResult RunFrom(std::size_t begin);
    TransferResult AskAgain();
    TransferResult Read(int address, MemoryBlock& read);

    const std::vector<ExpectedBlock>& expected_;
    BlockLink blocks_;
    TransferObserver& observer_;
    std::vector<BlockDifference>& differences_;
    std::size_t doubtful_ = 0;        ///< from here on replies may have shifted
    std::size_t differedBefore_ = 0;  ///< differences in front of it
};

TransferResult BackReader::Run()
{
    std::size_t begin = 0;
    for (int shifts = 0; shifts <= kMostShifts; ++shifts) {
        if (const TransferResult result = RunFrom(begin); result != Done)
            return result;
        if (!blocks_.HaveRepliesShifted())
            return observer_.IsCancelled() ? Cancelled : AskAgain();
        begin = doubtful_;
        differences_.resize(differedBefore_);
    }
    observer_.Message(ShiftedReplies());
    return Failed;
}

TransferResult BackReader::RunFrom(std::size_t begin)
{
    for (std::size_t i = begin; i < expected_.size(); ++i) {
        observer_.ProgressMoved(static_cast<int>(i), MemoryRowAt(expected_[i].address));
        const bool wasInDoubt = blocks_.IsInDoubt();
        MemoryBlock read;
        if (const TransferResult result = Read(expected_[i].address, read); result != Done)
            return result;
        if (blocks_.IsInDoubt() && !wasInDoubt) {
            doubtful_ = i;
            differedBefore_ = differences_.size();
        }
        if (!Agrees(expected_[i], read))
            differences_.push_back({expected_[i], read});
    }
    return Done;
}

/// What came with characters that are no hex digits may only have been disturbed.
TransferResult BackReader::AskAgain()
{
    for (BlockDifference& difference : differences_) {
        const bool wasHex = difference.read.IsHex();
        for (int ask = 0; ask < kAsks && !difference.read.IsHex(); ++ask)
            if (const TransferResult result = Read(difference.expected.address, difference.read);
                result != Done)
                return result;
        if (!wasHex && difference.read.IsHex())
            observer_.BlockRepeated(difference.expected.address);
    }
    std::erase_if(differences_, [](const BlockDifference& difference) {
        return Agrees(difference.expected, difference.read);
    });
    return Done;
}

TransferResult BackReader::Read(int address, MemoryBlock& read)
{
    const BlockResult block = blocks_.Read(address, read);
    if (block.problem)
        observer_.Message(*block.problem);
    return block.result;
}

}  // namespace

std::vector<Message> LabelsOf(const std::vector<BlockDifference>& differences)
{
    std::vector<Message> labels;
    labels.reserve(differences.size());
    for (const BlockDifference& difference : differences)
        labels.push_back(difference.expected.label);
    return labels;
}

TransferResult ReadBack(const std::vector<ExpectedBlock>& expected, RadioLink& link,
                        TransferObserver& observer, std::vector<BlockDifference>& differences)
{
    BackReader reader(expected, link, observer, differences);
    observer.ProgressStarted(std::max(0, static_cast<int>(expected.size()) - 1));
    const TransferResult result = reader.Run();
    observer.ProgressEnded();
    return result;
}

TransferResult ReadBackup(const CloneImage& image, const TransferScope& scope, RadioLink& link,
                          TransferObserver& observer, CloneImage& backup)
{
    backup = StartUpImage(std::clamp(image.Settings().model, 0, kRegions - 1));
    NewImage(backup);
    BackupObserver quiet(observer, NothingWritten());
    ReceiverReader reader(backup, link, quiet);
    TransferResult result = Done;
    if (scope.settings)
        result = reader.ReadSettings();
    if (scope.memory && result == Done)
        result = ReadGroup(reader, image, backup, scope.selector);
    if (!scope.memory && scope.banks && result == Done)
        result = reader.ReadBankPage();
    return result == Done ? RefuseUnreadable(reader, quiet) : result;
}

int BlocksToBackUp(const CloneImage& image, const TransferScope& scope)
{
    int blocks = 0;
    const auto add = [&blocks](Area area) { blocks += AreaOf(area).blocks; };
    if (scope.settings) {
        add(Area::Settings);
        add(Area::Vfo);
    }
    if (scope.memory || scope.banks) {
        add(Area::BankSizes);
        add(Area::Links);
    }
    if (scope.memory) {
        add(Area::Flags);
        blocks += TransferRows(image, scope.selector).count;
    }
    return blocks;
}

Message NothingWritten()
{
    return MESSAGE("The backup could not be made, so nothing was written.");
}

Message NotVerified()
{
    return MESSAGE("All was written, but not all of it could be verified.");
}

}  // namespace rqm5
