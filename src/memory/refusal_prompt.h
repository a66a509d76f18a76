#pragma once

#include "memory/channel_editor.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// The message for a frequency that was refused; most refusals have none.
/// \return true when a message was shown
bool ShowRefusal(Verdict verdict, Dialogs& dialogs, QWidget& parent);

}  // namespace rqm5
