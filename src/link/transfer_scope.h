#pragma once

#include "link/transfer_observer.h"

namespace rqm5 {

class ReceiverReader;
class ReceiverWriter;

/// What part of the receiver's memory an operation is about.
struct TransferScope
{
    bool settings = true;
    bool memory = true;
    int selector = 53;   ///< of the memory part; see bank_layout.h
    bool banks = false;  ///< bank sizes and links alone, where the memory is not part of it

    /// True when the memory is tried even after its settings have failed.
    bool GoesOnAfterSettings() const;
};

TransferResult ReadScope(ReceiverReader& reader, const TransferScope& scope);
TransferResult WriteScope(ReceiverWriter& writer, const TransferScope& scope);

}  // namespace rqm5
