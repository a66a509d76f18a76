#pragma once

#include <vector>

#include "language/message.h"
#include "link/expected_memory.h"
#include "link/radio_link.h"
#include "link/transfer_observer.h"

namespace rqm5 {

/// A block that the receiver holds otherwise than it should.
struct BlockDifference
{
    ExpectedBlock expected;
    MemoryBlock read;
};

/// What the blocks are that differ, one text each.
std::vector<Message> LabelsOf(const std::vector<BlockDifference>& differences);

/// Reads blocks back and keeps those that do not agree. Changes no image.
TransferResult ReadBack(const std::vector<ExpectedBlock>& expected, RadioLink& link,
                        TransferObserver& observer, std::vector<BlockDifference>& differences);

/// Reads from the receiver what a write of this scope would replace, into an image that is otherwise
/// empty. Where the receiver divides its channels into other banks than the image, rows are not where a
/// later write of that group would put them, so all rows are read then.
///
/// The observer is not told to refresh anything; a message says that nothing was written.
TransferResult ReadBackup(const CloneImage& image, const TransferScope& scope, RadioLink& link,
                          TransferObserver& observer, CloneImage& backup);

/// At least how many blocks ReadBackup reads.
int BlocksToBackUp(const CloneImage& image, const TransferScope& scope);

/// Why nothing was written: the aftermath of whatever kept a backup from being made.
Message NothingWritten();

/// What a read-back that breaks off means for the write before it.
Message NotVerified();

}  // namespace rqm5
