#pragma once

#include <string>
#include <vector>

#include "link/forwarding_observer.h"
#include "link/write_plan.h"

namespace rqm5 {

/// Keeps count of the blocks of a write while it runs, so that a write that stops in the middle can tell
/// what the receiver holds then. Messages get that as their aftermath.
class WriteRecord : public ForwardingObserver
{
  public:
    WriteRecord(const CloneImage& image, const TransferScope& scope, TransferObserver& next);

    /// Which blocks were sent, which was refused or is in doubt, which were not sent, and that repeating
    /// the write completes it: sentences on one line.
    std::string Summary() const { return Describe(sections_.size()); }

    /// True once something may have changed in the receiver.
    bool HasBegun() const;

    void BlockDone(int address, bool written) override;
    void BlockFailed(int address, bool written) override;
    void BlockUnsent(int address, bool written) override;
    void Message(const Problem& problem) override;
    bool IsCancelled() override;

  private:
    enum class State { NotSent, Sent, Refused, UnderWay };

    struct Section
    {
        WriteSection plan;
        std::vector<State> states;
    };

    /// The next block of the plan, or the one behind it that has this address.
    struct Place
    {
        std::size_t section = 0;
        std::size_t block = 0;
    };

    bool Find(int address, bool written);
    void SetHere(State state);
    State StateAt(const Section& section, std::size_t block) const;
    std::string Describe(std::size_t sectionCount) const;
    std::string BlocksThatAre(State state, std::size_t sectionCount) const;

    const TransferScope scope_;
    std::vector<Section> sections_;
    Place next_;
    std::size_t failedSection_ = 0;
    bool isUnderWay_ = false;  ///< an attempt at the next block has begun
};

}  // namespace rqm5
