#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "image/clone_image.h"
#include "image/memory_block.h"

namespace rqm5 {

using BlockMap = std::map<int, MemoryBlock>;  ///< by address

/// Every block that a whole write leaves and that can be read back: all but the presets.
const std::vector<int>& ReadableBlocks();

/// Those blocks as an image makes them.
BlockMap BlocksOfImage(const CloneImage& image);

/// The image that those blocks make, without notes.
CloneImage ImageOfBlocks(const BlockMap& blocks);

/// Where an earlier state of the receiver is known from. A file holds no more than an image does, so that
/// blocks of the same meaning are the same there.
enum class KnownFrom { Receiver, File };

/// Something that was changed here, and at the receiver, too.
struct Conflict
{
    std::vector<int> addresses;  ///< one block, or the bank sizes, which belong together
    bool takesReceivers = false;
};

/// Which blocks must be written so that a receiver whose contents are known holds what a whole write of an
/// image would leave.
///
/// BlockMap that many rows share are merged: what is not changed here stays as the receiver has it. The list
/// of Search Pass channels and its count follow from the merged flags.
class ChangePlan
{
  public:
    /// \param known           every readable block, as far as is known
    /// \param arePresetsDue   the receiver does not hold all presets of its region
    ChangePlan(const CloneImage& image, BlockMap known, KnownFrom from, bool arePresetsDue);

    /// What is to be written, by address, presets included.
    const BlockMap& Wanted() const { return wanted_; }

    /// What the receiver holds in place of it: what was known, and since Check what it really holds.
    const BlockMap& Held() const { return held_; }
    const BlockMap& Known() const { return known_; }

    /// The blocks that must be read before the first one is written.
    std::vector<int> BlocksToCheck() const { return {toCheck_.begin(), toCheck_.end()}; }

    /// They were read: finds conflicts, and merges anew.
    void Check(const BlockMap& read);

    const std::vector<Conflict>& Conflicts() const { return conflicts_; }

    /// Decides each conflict, in their order.
    void Decide(const std::vector<bool>& takesReceivers);

    /// The image as the receiver holds it afterwards: the notes and what is not changed at the receiver are
    /// the image's.
    CloneImage Result() const;

    /// The model region changes, or its presets are not all there.
    bool SendsPresets() const;

  private:
    void Plan();
    void WatchSearchPass();
    void FindConflicts();
    bool IsChangedThere(int address) const;
    bool IsChangedHere(int address) const;
    bool IsTaken(int address) const;
    CloneImage Merged() const;
    MemoryBlock Target(const CloneImage& merged, int address) const;

    const CloneImage image_;
    const BlockMap known_;
    const KnownFrom from_;
    const bool arePresetsDue_;
    BlockMap held_;
    BlockMap wanted_;
    std::set<int> toCheck_;
    bool changesSearchPass_ = true;  ///< its list and count are written, where they differ
    std::vector<Conflict> conflicts_;
};

}  // namespace rqm5
