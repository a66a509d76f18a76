#pragma once

#include "image/clone_image.h"
#include "link/block_link.h"
#include "link/radio_link.h"
#include "link/receiver_reader.h"
#include "link/transfer_observer.h"

namespace rqm5 {

/// The write operations: fixed sequences of single-block writes, each acknowledged by the receiver.
/// A failed block ends the operation; what was acknowledged before it stays written. Nothing is read back.
class ReceiverWriter
{
  public:
    ReceiverWriter(CloneImage& image, RadioLink& link, TransferObserver& observer)
        : image_(image), observer_(observer), blocks_(link, observer), reader_(image, link, observer)
    {
    }

    /// BankData rebuilt and sent, then the link flags.
    TransferResult WriteBankPage();

    /// Banks, links, flags (merged with the receiver's outside the group), for Search Pass and All the
    /// Search Pass blocks and their count, then every channel of a selector entry (see TransferRows).
    /// Afterwards MemEnable holds the receiver's flags outside the group.
    TransferResult WriteMemory(int selector);

    /// Both settings blocks, the 14 VFO bands, and the presets of the model region.
    TransferResult WriteSettings();

    /// Settings, then all of the memory. The memory write runs even when the settings write failed; the
    /// result is the worse of the two. Not so after a cancel, which ends both.
    TransferResult WriteAll();

  private:
    template <std::size_t N>
    TransferResult WriteBlocks(int firstAddress, const std::array<MemoryBlock, N>& blocks);
    TransferResult WriteMemoryBlocks(int selector, RowRange rows);
    TransferResult WriteBanks();
    TransferResult WriteLinks();
    TransferResult MergeFlags(RowRange rows);
    TransferResult WriteSearchPass();
    TransferResult WriteChannels(RowRange rows);
    TransferResult WriteVfoRows();
    TransferResult WritePresets();

    CloneImage& image_;
    TransferObserver& observer_;
    BlockLink blocks_;
    ReceiverReader reader_;
};

}  // namespace rqm5
