#pragma once

#include <QDateTime>
#include <QString>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "image/clone_image.h"
#include "image/memory_block.h"

namespace rqm5 {

/// A block as the receiver holds it, and when that was seen.
struct KnownBlock
{
    MemoryBlock contents;
    QDateTime time;
};

using KnownBlocks = std::map<int, KnownBlock>;  ///< by address

/// What the receiver held when each of its blocks was read or written last.
struct HeldImage
{
    CloneImage image;
    QDateTime since;  ///< when its oldest block was seen
};

/// What this program knows of the receiver at a port: every block that it has read there, or written with an
/// OK.
///
/// A block that was sent without an OK is unknown, and so is what came while replies may have shifted. What
/// an earlier run of the program knew counts only once the blocks that tell receivers apart (settings, bank
/// sizes, links, flags) were read and are as they were: it may be another receiver.
class ReceiverKnowledge
{
  public:
    /// The blocks that tell receivers apart.
    static std::set<int> TellingBlocks();

    /// Keeps what is known in this folder for later runs, and takes up what an earlier one left there.
    void KeepIn(const QString& folder);

    /// The receiver at this device is meant from here on; another port may have another one.
    void GoTo(const QString& device);

    /// Notices what another program has learnt of this receiver meanwhile: nothing counts then before the
    /// telling blocks were read.
    void CatchUp();

    /// Keeps it for later runs now, where there is something new. Without a folder nothing is kept.
    void Save();

    /// A block was read.
    void TakeRead(int address, const MemoryBlock& block);

    /// A block is about to be sent: until its OK nobody knows what is there.
    void TakeSending(int address, const MemoryBlock& block);

    /// A block was sent and acknowledged.
    void TakeWritten(int address, const MemoryBlock& block);

    /// From here on replies may be other blocks' until the doubt ends; what came with it counts when they
    /// have not shifted.
    void BeginDoubt() { isInDoubt_ = true; }
    void EndDoubt(bool haveShifted);

    /// Forgets that these blocks were read, and counts what was known of them before.
    void PutBack(const std::vector<int>& addresses, const KnownBlocks& before);

    /// The device went away; what comes back may be another receiver.
    void Leave();

    /// Nothing for a block that is not known, or only from an earlier run that does not count yet.
    const KnownBlock* Find(int address) const;

    /// True as long as there is knowledge of an earlier run that does not count yet.
    bool HasEarlier() const { return !earlier_.empty(); }

    /// True when a write has changed the model region and not sent all of its presets.
    bool ArePresetsDue() const { return arePresetsDue_; }

    /// The image that the receiver held when it was last read, when all of it is known, without notes. What
    /// an earlier run knew is in it, also while it does not count yet: its age tells.
    std::optional<HeldImage> LastHeld() const;

  private:
    void Take(int address, const KnownBlock& block);
    void Compare(int address, const MemoryBlock& read);
    void WatchPresets(int address);
    KnownBlocks ToKeep() const;
    void Load();
    QString Path() const;

    QString folder_;
    QString device_;
    KnownBlocks known_;
    KnownBlocks earlier_;   ///< of an earlier run, as long as it does not count
    KnownBlocks doubtful_;  ///< came while replies may have shifted
    std::set<int> untold_;  ///< telling blocks that were not read since the earlier run
    bool isInDoubt_ = false;
    bool arePresetsDue_ = false;
    bool isNew_ = false;      ///< there is something that the folder does not hold
    bool isRemoved_ = false;  ///< a write has taken the file away until the next Save
    QDateTime stored_;        ///< the time of the file as this program left it
};

}  // namespace rqm5
