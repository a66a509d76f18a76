#pragma once

#include "image/channel.h"

namespace rqm5 {

/// A row as a block of the receiver or a file gives it back: worded as decoded, without what blocks do not
/// hold exactly. Note and flag stay.
Channel HeldChannel(const Channel& channel, RowKind kind);

}  // namespace rqm5
