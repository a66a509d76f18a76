#pragma once

#include "image/problem.h"

namespace rqm5 {

/// What a transfer has changed in the image, so that whoever shows it can show it anew.
enum class Changed {
    SelectorToAll,  ///< "all" operations: the bank selector goes to "All" (index 53)
    Settings,       ///< Settings was decoded
    Vfo,            ///< VFO rows
    BankLayout,     ///< bank sizes, so labels and rows of every group
    BankLinks,      ///< BankLink
    Memory,         ///< memory rows or their flags
};

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

    /// One block was read or acknowledged.
    virtual void BlockDone(int /*address*/, bool /*written*/) {}

    /// A block was refused for good; called before Message.
    virtual void BlockFailed(int /*address*/, bool /*written*/) {}

    /// The port could not be opened, so nothing of this block left the computer; called before Message.
    virtual void BlockUnsent(int /*address*/, bool /*written*/) {}

    virtual void Refresh(Changed /*what*/) {}

    /// The operation failed; it ends after this call.
    virtual void Message(const Problem& /*problem*/) {}

    /// True once the transfer shall stop. Asked before each attempt; it ends without a message then.
    virtual bool IsCancelled() { return false; }
};

enum class TransferResult { Done, Failed, Cancelled };

}  // namespace rqm5
