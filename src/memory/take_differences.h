#pragma once

#include <vector>

#include "memory/comparison.h"

namespace rqm5 {

/// Takes rows, bank sizes, links and settings of another image. What differs only because blocks do not hold
/// it exactly stays as it is, and so do the notes of rows with a channel when the other side has no notes.
/// \return false when the banks would hold more than 1000 channels together; nothing changes then
bool TakeDifferences(CloneImage& image, const CloneImage& other, const ComparedParts& parts,
                     const std::vector<ItemId>& items);

}  // namespace rqm5
