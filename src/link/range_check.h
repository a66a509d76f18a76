#pragma once

#include <string>
#include <vector>

#include "image/clone_image.h"
#include "link/change_plan.h"
#include "link/transfer_scope.h"

namespace rqm5 {

/// The rows that a write of this scope sends with a frequency that the receiver does not take.
std::vector<std::string> RowsWrittenOutOfRange(const CloneImage& image, const TransferScope& scope);

/// Those of them whose blocks are among these; of the VFO bands all, when one is.
std::vector<std::string> RowsWrittenOutOfRange(const CloneImage& image, const BlockMap& written);

}  // namespace rqm5
