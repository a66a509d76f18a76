#pragma once

#include <QString>

#include "image/clone_image.h"
#include "language/message.h"

namespace rqm5 {

/// Keeps what was read from the receiver and could not be saved: in the folder of recovery files, for the
/// next start of the window to offer.
/// \param meant  the file that it was read for
/// \return a sentence that names the file; or why there is none
Message Rescue(const CloneImage& image, const QString& meant);

}  // namespace rqm5
