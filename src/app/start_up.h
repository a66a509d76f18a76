#pragma once

#include <memory>

#include "app/main_window.h"
#include "app/start_options.h"

namespace rqm5 {

/// Shows the splash window, builds and loads the main window behind it, and shows the main window.
std::unique_ptr<frmMain> StartUp(SerialPort& port, Dialogs& dialogs, const StartOptions& options);

}  // namespace rqm5
