#pragma once

#include "image/clone_image.h"
#include "link/block_link.h"
#include "link/radio_link.h"
#include "link/transfer_observer.h"
#include "memory/bank_layout.h"

namespace rqm5 {

/// The read operations: fixed sequences of single-block reads, each block kept as soon as it arrives.
/// A failed block ends the operation; what was read before it stays.
class ReceiverReader
{
  public:
    ReceiverReader(CloneImage& image, RadioLink& link, TransferObserver& observer)
        : image_(image), observer_(observer), blocks_(link, observer)
    {
    }

    /// Blocks 00C0 to 0120 into BankData; decodes nothing.
    TransferResult ReadBank();

    /// ReadBank, decoded, then the link flags (block 0260), decoded.
    TransferResult ReadBankPage();

    /// Flags, banks, links and the channels of a selector entry (see TransferRows).
    TransferResult ReadMemory(int selector);

    /// Both settings blocks and the 14 VFO bands.
    TransferResult ReadSettings();

    /// Settings, then all of the memory. The memory read runs even when the settings read failed; the
    /// result is the worse of the two. Not so after a cancel, which ends both.
    TransferResult ReadAll();

    /// The ten flag blocks into ExtraData and MemEnable, once all have arrived.
    TransferResult ReadFlags();

    /// The channels of these rows, without their flags.
    TransferResult ReadChannels(RowRange rows);

  private:
    TransferResult ReadVfoRows();

    CloneImage& image_;
    TransferObserver& observer_;
    BlockLink blocks_;
};

}  // namespace rqm5
