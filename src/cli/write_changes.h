#pragma once

#include <vector>

#include "cli/arguments.h"
#include "cli/console.h"
#include "cli/receiver_session.h"
#include "image/clone_image.h"

namespace rqm5 {

/// What write --changes does: reads what is not known of the receiver, and writes what it holds otherwise.
Status WriteChanges(const Arguments& arguments, const CloneImage& image, ReceiverSession& session,
                    Console& console);

/// That rows outside what is written have other flags in the receiver.
Message OtherFlagsNote(int flags);

/// Warns of rows that the receiver does not take.
void WarnOutOfRange(const std::vector<Message>& rows, Console& console);

/// What is wrong with the options of write together; empty when nothing is.
Message WriteConflict(const Arguments& arguments);

}  // namespace rqm5
