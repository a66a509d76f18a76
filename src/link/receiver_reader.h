#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "image/clone_image.h"
#include "link/block_link.h"
#include "link/expected_memory.h"
#include "link/memory_map.h"
#include "link/radio_link.h"
#include "link/transfer_observer.h"
#include "link/transfer_scope.h"

namespace rqm5 {

/// The read operations: fixed sequences of single-block reads, each kept as soon as it means something.
/// A failed block ends the operation; what was read before it stays.
///
/// What a bad line did to an operation is mended at its end, when its blocks are through: when replies have
/// shifted, everything from the first block on that was in doubt is read again, and so are single blocks with
/// characters that are no hex digits, up to three times. The image is then what it would be had all gone well
/// at once.
class ReceiverReader
{
  public:
    ReceiverReader(CloneImage& image, RadioLink& link, TransferObserver& observer)
        : image_(image), observer_(observer), blocks_(link, observer)
    {
    }

    /// Bank sizes, then the link flags.
    TransferResult ReadBankPage();

    /// Flags, banks, links and the channels of a selector entry (see TransferRows).
    TransferResult ReadMemory(int selector);

    /// Both settings blocks and the 14 VFO bands.
    TransferResult ReadSettings();

    /// Settings, then all of the memory. The memory read runs even when the settings read failed; the
    /// result is the worse of the two. Not so after a cancel, which ends both.
    TransferResult ReadAll();

    /// The parts of a scope, until one fails.
    TransferResult Read(const TransferScope& scope);

    /// Reads of this reader as one operation.
    TransferResult Run(const std::function<TransferResult()>& sequence);

    /// The flags of all rows, once all their blocks have arrived: a read that breaks off leaves every flag as
    /// it was.
    TransferResult ReadFlags();

    /// The channels of these rows, without their flags.
    TransferResult ReadChannels(RowRange rows);

    /// True once something that was read is in the image.
    bool HasStored() const { return hasStored_; }

    /// The names of the blocks that hold characters that are no hex digits, however often they were read.
    std::vector<Message> Unreadable() const;

    /// Every block as it was read last, in the order of reading: what another read should bring.
    std::vector<ExpectedBlock> Blocks() const;

  private:
    struct ReadOnce
    {
        const MemoryArea* area;
        int index;
        MemoryBlock block;
        int Address() const { return area->AddressOf(index); }
    };

    TransferResult ReadBlock(const MemoryArea& area, int index, MemoryBlock& block);
    TransferResult ReadArea(Area id);
    TransferResult ReadGroup(int selector);
    TransferResult ReadRows(RowRange rows);
    TransferResult ReadVfoRows();
    TransferResult Mend(const std::function<TransferResult()>& sequence);
    TransferResult Again(const std::function<TransferResult()>& sequence);
    TransferResult AskAgain(std::set<int>& asked, bool& hasMended);
    void Store(const MemoryArea& area, int first, std::span<const MemoryBlock> blocks);

    CloneImage& image_;
    TransferObserver& observer_;
    BlockLink blocks_;
    bool hasStored_ = false;
    bool isRunning_ = false;

    std::vector<ReadOnce> read_;        ///< in the order of reading
    std::size_t begin_ = 0;             ///< where in it the operation begins
    std::size_t doubtful_ = 0;          ///< from here on replies may have shifted, while the link is in doubt
    std::map<int, MemoryBlock> known_;  ///< while an operation runs again: what need not be read again
    std::optional<CloneImage> unharmed_;  ///< the image before the first block that may be wrong
};

}  // namespace rqm5
