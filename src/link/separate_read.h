#pragma once

#include "image/clone_image.h"
#include "link/radio_link.h"
#include "link/transfer_observer.h"

namespace rqm5 {

/// Reads all of the receiver into an image of its own. Blocks that cannot be read without characters that are
/// no hex digits make it fail, with a message: differences to such an image would be none.
/// \param image  what the receiver holds when it is done, else unspecified
TransferResult ReadSeparately(RadioLink& link, TransferObserver& observer, CloneImage& image);

}  // namespace rqm5
