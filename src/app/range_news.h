#pragma once

#include <vector>

#include "ui/message_bar.h"

namespace rqm5 {

/// Says in the message bar which rows a write sends with a frequency outside the receiver's range; without
/// any it takes back what an earlier write said.
void TellOutOfRange(const std::vector<Message>& rows, MessageBar& bar);

}  // namespace rqm5
