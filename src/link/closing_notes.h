#pragma once

#include <chrono>
#include <string>

#include "image/image_change.h"
#include "language/message.h"
#include "link/transfer_scope.h"

namespace rqm5 {

/// "1:07"
std::string TimeText(std::chrono::seconds time);

/// What a read has done: "Read in 1:01: 105 channels on, 3 rows changed".
/// \param change  from the image before it to the image after it
Message ReadNote(std::chrono::seconds took, bool isVerified, const TransferScope& scope,
                 const CloneImage& image, const ImageChange& change);

/// "Written in 1:07", "Written in 2:10 and verified".
Message WrittenNote(std::chrono::seconds took, bool isVerified);

/// What a comparison with the receiver has found: "Compared in 1:01: no block differs".
Message ComparedNote(std::chrono::seconds took, int differences);

}  // namespace rqm5
