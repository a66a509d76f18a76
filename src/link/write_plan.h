#pragma once

#include <optional>
#include <set>
#include <vector>

#include "language/message.h"
#include "link/memory_map.h"
#include "link/transfer_scope.h"

namespace rqm5 {

/// How far a write is with one block.
enum class StepState { NotSent, Sent, Refused, UnderWay };

/// Blocks of one kind that a write sends, or reads on its way, one after the other.
struct WriteSection
{
    enum class Kind {
        Send,       ///< what the image makes
        Read,       ///< the receiver's own, to be merged into the next section
        SendFlags,  ///< the receiver's flags with those of the scope's rows from the image
        SendCount,  ///< the receiver's block with the count of Search Pass channels
    };

    Kind kind;
    const MemoryArea* area;
    std::vector<int> blocks;  ///< of the area
    bool ofMemory;            ///< false: of the settings
    std::vector<StepState> states;

    bool IsRead() const { return kind == Kind::Read; }
    int AddressOf(std::size_t step) const { return area->AddressOf(blocks[step]); }
};

/// What a write of a scope does, in its order, and how far it has come.
class WritePlan
{
  public:
    WritePlan(const CloneImage& image, const TransferScope& scope);

    /// The same order for these blocks alone, each sent once and none read.
    /// \param isCountAlone  of the second settings block only the count changes, which has its own place
    WritePlan(const CloneImage& image, const std::set<int>& addresses, bool isCountAlone);

    std::vector<WriteSection>& Sections() { return sections_; }
    const std::vector<WriteSection>& Sections() const { return sections_; }

    /// How many blocks the write transfers, those included that it reads on its way.
    int BlockCount() const;

    /// True once something may have changed in the receiver.
    bool HasBegun() const;

    /// True once this block may have changed in the receiver.
    bool MayHaveSent(int address) const;

    /// Which blocks were sent, which was refused or is in doubt, which were not sent, and that repeating
    /// the write completes it: sentences on one line.
    Message Summary() const;

  private:
    using Kind = WriteSection::Kind;

    void Add(Kind kind, Area area, bool ofMemory);
    void Add(Kind kind, Area area, std::vector<int> blocks, bool ofMemory);
    void AddMemory(const CloneImage& image, int selector);
    Message BlocksThatAre(StepState state) const;

    std::vector<WriteSection> sections_;
};

}  // namespace rqm5
