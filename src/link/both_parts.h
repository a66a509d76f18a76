#pragma once

#include "link/transfer_observer.h"

namespace rqm5 {

/// The "all" operations: a settings part, then a memory part of all rows. The second runs even when the
/// first failed, but not after a cancel. \return the worse of the two results
template <typename Settings, typename Memory>
TransferResult RunBothParts(TransferObserver& observer, Settings transferSettings, Memory transferMemory)
{
    const TransferResult settings = transferSettings();
    if (settings == TransferResult::Cancelled)
        return settings;
    for (const Changed what : {Changed::SelectorToAll, Changed::BankLayout, Changed::Memory})
        observer.Refresh(what);
    const TransferResult memory = transferMemory();
    return memory == TransferResult::Done ? settings : memory;
}

}  // namespace rqm5
