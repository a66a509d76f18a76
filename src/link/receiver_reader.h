#pragma once

#include <span>

#include "image/clone_image.h"
#include "link/block_link.h"
#include "link/memory_map.h"
#include "link/radio_link.h"
#include "link/transfer_observer.h"
#include "link/transfer_scope.h"

namespace rqm5 {

/// The read operations: fixed sequences of single-block reads, each kept as soon as it means something.
/// A failed block ends the operation; what was read before it stays.
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

    /// The flags of all rows, once all their blocks have arrived: a read that breaks off leaves every flag as
    /// it was.
    TransferResult ReadFlags() { return ReadArea(Area::Flags); }

    /// The channels of these rows, without their flags.
    TransferResult ReadChannels(RowRange rows);

    /// True once something that was read is in the image.
    bool HasStored() const { return hasStored_; }

  private:
    TransferResult ReadBlock(const MemoryArea& area, int index, MemoryBlock& block);
    TransferResult ReadArea(Area id);
    TransferResult ReadVfoRows();
    void Store(const MemoryArea& area, int first, std::span<const MemoryBlock> blocks);

    CloneImage& image_;
    TransferObserver& observer_;
    BlockLink blocks_;
    bool hasStored_ = false;
};

}  // namespace rqm5
