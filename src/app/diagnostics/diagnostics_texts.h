#pragma once

#include "image/clone_image.h"
#include "language/message.h"
#include "link/raw_read.h"

namespace rqm5 {

/// What a raw read led to, in lines: what the block is, the reply with its control characters visible, the
/// time it took, the decoded fields, or why there is none.
///
/// \param image  says how the banks are divided
Message RawReplyText(const CloneImage& image, int address, const RawReply& reply, const SerialPort& port);

/// Round trip times and errors of a link test; when the port failed, that first.
Message LinkTestText(const LinkTestResult& result, const SerialPort& port);

}  // namespace rqm5
