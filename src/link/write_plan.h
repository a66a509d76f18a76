#pragma once

#include <string_view>
#include <vector>

#include "image/clone_image.h"
#include "link/transfer_scope.h"

namespace rqm5 {

/// Blocks of one kind that a write sends, or reads on its way, one after the other.
struct WriteSection
{
    const char* one;   ///< "VFO band"; a kind of a single block is called by this alone
    const char* many;  ///< "VFO bands"; nullptr where blocks are read to be merged
    int firstNumber;   ///< of the first block, as a person counts
    bool ofMemory;     ///< false: of the settings
    bool isPart;       ///< a part of more blocks of its kind: it is always named with its numbers
    std::vector<int> addresses;

    bool IsRead() const { return many == nullptr; }
};

/// What a write of this scope does, in its order.
std::vector<WriteSection> PlanWrite(const CloneImage& image, const TransferScope& scope);

/// How many blocks a write transfers, those included that it reads on its way.
int BlocksToWrite(const CloneImage& image, const TransferScope& scope);

}  // namespace rqm5
