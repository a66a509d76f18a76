#pragma once

#include <vector>

#include "image/clone_image.h"
#include "language/message.h"
#include "link/change_plan.h"
#include "link/transfer_scope.h"

namespace rqm5 {

/// The rows that a write of this scope sends with a frequency that the receiver does not take.
std::vector<Message> RowsWrittenOutOfRange(const CloneImage& image, const TransferScope& scope);

/// Those of them whose blocks are among these; of the VFO bands all, when one is.
std::vector<Message> RowsWrittenOutOfRange(const CloneImage& image, const BlockMap& written);

}  // namespace rqm5
