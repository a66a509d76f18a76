#pragma once

#include <set>
#include <vector>

#include "language/message.h"
#include "link/block_link.h"
#include "link/change_plan.h"
#include "link/expected_memory.h"
#include "link/write_plan.h"

namespace rqm5 {

/// The blocks that must be read before it can be told what differs: the telling blocks alone as long as what
/// an earlier run knew waits for them, else every readable block that is not known.
std::vector<int> BlocksToLearn(const ReceiverKnowledge& knowledge);

/// What is known of the readable blocks, all of which must be known.
BlockMap KnownContents(const ReceiverKnowledge& knowledge);

/// Reads blocks as a verification does, and changes no image. Blocks that cannot be read are a failure.
/// \param image  names the rows in messages
TransferResult ReadBlocks(const std::vector<int>& addresses, const CloneImage& image, RadioLink& link,
                          TransferObserver& observer, BlockMap& read);

/// Holds what is known of blocks while they are read to be checked. Where nothing is written after all it
/// comes back, so that the next attempt finds the same conflicts.
class KnownBeforeCheck
{
  public:
    KnownBeforeCheck(ReceiverKnowledge& knowledge, const std::vector<int>& addresses);
    ~KnownBeforeCheck();
    KnownBeforeCheck(const KnownBeforeCheck&) = delete;
    KnownBeforeCheck& operator=(const KnownBeforeCheck&) = delete;

    /// The write begins.
    void Forget() { addresses_.clear(); }

  private:
    ReceiverKnowledge& knowledge_;
    std::vector<int> addresses_;
    KnownBlocks before_;
};

/// What a read-back after the changes should bring.
std::vector<ExpectedBlock> ExpectedAfterChanges(const CloneImage& image, const ChangePlan& changes);

/// How long so many exchanges of a block take at 9600 baud: "about 3 seconds", "about one minute".
Message AboutTime(std::size_t exchanges);

/// What must be read first: "The receiver was never read in this run: 1251 blocks, about one minute".
Message UnknownNote(std::size_t blocks);

/// What a failure before the first block means.
Message NothingChanged();

/// Writes what a change plan wants, in the order of a whole write, each block acknowledged by the receiver.
class ChangeWriter
{
  public:
    ChangeWriter(const CloneImage& image, const ChangePlan& changes, RadioLink& link,
                 TransferObserver& observer);

    TransferResult Write();

    /// True when all was acknowledged, but an OK may have been another block's.
    bool IsInDoubt() const { return isInDoubt_; }

    const WritePlan& Plan() const { return plan_; }

  private:
    const ChangePlan& changes_;
    TransferObserver& observer_;
    BlockLink blocks_;
    WritePlan plan_;
    bool isInDoubt_ = false;
};

}  // namespace rqm5
