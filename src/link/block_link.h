#pragma once

#include <optional>
#include <string>

#include "image/memory_block.h"
#include "image/problem.h"
#include "link/radio_link.h"
#include "link/reply_outcome.h"
#include "link/reply_watch.h"
#include "link/transfer_observer.h"

namespace rqm5 {

/// What became of a block under the retry rule.
struct BlockResult
{
    TransferResult result = TransferResult::Done;
    ReplyOutcome outcome = ReplyOutcome::Good;  ///< of the last attempt
    int attempts = 0;
    std::optional<Problem> problem{};  ///< of a failure; nobody has been told of it yet
};

/// Moves single blocks under the retry rule that all transfers share: a bad or missing reply is tried
/// again, 10 attempts in all; a port failure ends the operation at once.
///
/// Around the rule the line falls silent: between attempts, and before a block while an earlier reply may
/// still come. A block that goes well at once is not kept waiting. What the link knows of the receiver
/// follows each block.
class BlockLink
{
  public:
    static constexpr int kAttempts = 10;

    BlockLink(RadioLink& link, TransferObserver& observer) : link_(link), observer_(observer) {}
    ~BlockLink() { BeginAnew(); }
    BlockLink(const BlockLink&) = delete;
    BlockLink& operator=(const BlockLink&) = delete;

    /// \param block  takes the 32 characters as they came; unchanged unless Done is returned
    BlockResult Read(int address, MemoryBlock& block);

    BlockResult Write(int address, const MemoryBlock& block);

    /// True when a reply was missing in this operation, or in the one before it, so that from here on replies
    /// may have shifted.
    bool IsInDoubt() const { return watch_.IsWatching(); }

    /// Ends a doubt: hears for one time-out whether a reply still comes. \return true when replies had
    /// shifted. Takes no time when there is no doubt
    bool HaveRepliesShifted();

    /// Another operation begins, after one that broke off: what is in doubt there counts no more.
    void BeginAnew();

  private:
    ReplyOutcome Pause(int attempts);
    void Watch(int attempts);
    void Conclude(int address, bool written, BlockResult& block);

    template <typename Try>
    BlockResult Repeat(int address, bool written, Try attempt);

    RadioLink& link_;
    TransferObserver& observer_;
    ReplyWatch watch_;
};

}  // namespace rqm5
