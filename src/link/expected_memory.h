#pragma once

#include <vector>

#include "image/clone_image.h"
#include "image/memory_block.h"
#include "language/message.h"
#include "link/transfer_scope.h"

namespace rqm5 {

/// A block as a whole write of a scope leaves it in the receiver.
struct ExpectedBlock
{
    int address;
    MemoryBlock contents;
    MemoryBlock mask;  ///< a 1 bit counts; a 0 bit is left as the receiver has it
    Message label;     ///< "Settings 1", "VFO 3", "Bank sizes 0 to 7", "Row 1105 (Search Pass S5)", ...
};

/// Every block that a write of this scope leaves changed, in the order of its addresses. The presets are
/// not among them: they are never read back.
std::vector<ExpectedBlock> ExpectedAfterWrite(const CloneImage& image, const TransferScope& scope);

/// The same for a receiver that was not just written: the count of Search Pass channels, which only a write
/// of the memory sets, counts only where that is in the scope.
std::vector<ExpectedBlock> ExpectedInReceiver(const CloneImage& image, const TransferScope& scope);

/// True when a block read from the receiver is as expected where the mask says so.
bool Agrees(const ExpectedBlock& expected, const MemoryBlock& read);

}  // namespace rqm5
