#pragma once

#include "image/memory_block.h"
#include "image/problem.h"

namespace rqm5 {

/// What a transfer tells while it runs. Everything is optional.
class TransferObserver
{
  public:
    virtual ~TransferObserver() = default;

    /// A row by row part begins: the bar goes to 0, is shown, and ends at maximum (last - first). A memory
    /// read calls it again when the bank sizes have arrived, which may change the maximum.
    virtual void ProgressStarted(int /*maximum*/) {}
    /// Memory row `row` is about to be transferred; value is 0 to maximum.
    virtual void ProgressMoved(int /*value*/, int /*row*/) {}
    virtual void ProgressEnded() {}

    /// A block of the image was read from the receiver. Not told of what is read to check a write.
    virtual void BlockRead(int /*address*/, const MemoryBlock& /*block*/) {}

    /// One block was read or acknowledged.
    virtual void BlockDone(int /*address*/, bool /*written*/) {}

    /// A block is done that needed more than one attempt.
    virtual void BlockRepeated(int /*address*/) {}

    /// The memory part of an "all" operation begins: the bank selector goes to this entry.
    virtual void GroupChosen(int /*selector*/) {}

    /// A part of what was read is in the image now and may be shown.
    virtual void Stored() {}

    /// The operation failed; it ends after this call.
    virtual void Message(const Problem& /*problem*/) {}

    /// True once the transfer shall stop. Asked before each attempt; it ends without a message then.
    virtual bool IsCancelled() { return false; }
};

enum class TransferResult { Done, Failed, Cancelled };

}  // namespace rqm5
