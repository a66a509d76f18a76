#pragma once

#include "image/receiver_model.h"

namespace rqm5 {

/// What part of the receiver's memory an operation is about.
struct TransferScope
{
    bool settings = true;
    bool memory = true;
    int selector = kSelectAll;  ///< of the memory part
    bool banks = false;         ///< bank sizes and links alone, where the memory is not part of it

    /// The "all" operations move the bank selector.
    bool IsWhole() const { return settings && memory && selector == kSelectAll; }
};

}  // namespace rqm5
