#pragma once

#include <vector>

#include "image/clone_image.h"
#include "link/block_link.h"
#include "link/radio_link.h"
#include "link/transfer_observer.h"
#include "link/write_plan.h"

namespace rqm5 {

/// Writes a scope of an image by its plan, each block acknowledged by the receiver. A failed block ends the
/// write; what was acknowledged before it stays written. Nothing is read back.
///
/// Settings, VFO bands and presets come first, then banks, links, flags (merged with the receiver's outside
/// the group), for Search Pass and All the Search Pass list and its count, then every channel of the group.
class ReceiverWriter
{
  public:
    ReceiverWriter(const CloneImage& image, const TransferScope& scope, RadioLink& link,
                   TransferObserver& observer);

    /// Runs the plan once.
    TransferResult Write();

    /// True when all was acknowledged, but replies had shifted: an OK may have been another block's, so what
    /// was written must be verified or written again.
    bool IsInDoubt() const { return isInDoubt_; }

    const WritePlan& Plan() const { return plan_; }

    /// The image as it was written: outside the group it holds the receiver's flags once they were read.
    const CloneImage& Written() const { return image_; }

    /// How many rows outside the group had another flag in the image than in the receiver.
    int OtherFlags() const { return otherFlags_; }

  private:
    TransferResult Run(WriteSection& section);
    TransferResult RunSteps(WriteSection& section);
    TransferResult AskAgain(WriteSection& section);
    TransferResult Step(WriteSection& section, std::size_t step);
    MemoryBlock ContentsOf(const WriteSection& section, std::size_t step) const;
    void MergeFlags();
    void BeginPart(const WriteSection& section);
    TransferResult Conclude(const BlockResult& result, StepState& state);

    CloneImage image_;  ///< a copy: the flags that the receiver has outside the group come into it
    const TransferScope scope_;
    TransferObserver& observer_;
    BlockLink blocks_;
    WritePlan plan_;
    std::vector<MemoryBlock> read_;  ///< the receiver's blocks of the last section that was read
    bool isInMemory_ = false;        ///< the memory part has begun
    int otherFlags_ = 0;
    bool isInDoubt_ = false;
};

/// Keeps what became of a step, and tells of a failure with what the receiver holds then.
TransferResult ConcludeStep(BlockResult result, StepState& state, const WritePlan& plan,
                            TransferObserver& observer);

}  // namespace rqm5
