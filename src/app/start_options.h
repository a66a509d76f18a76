#pragma once

#include <QString>
#include <chrono>
#include <functional>

namespace rqm5 {

/// What the program's entry tells the main window.
struct StartOptions
{
    QString commandFile;  ///< clone file to open at the start; empty for none
    QString portFile;     ///< where the COM number is read at the start and written at the end
    QString stateFolder;  ///< where unsaved changes are kept for the case of a crash; empty: nowhere
    std::chrono::milliseconds recoveryDelay{5000};
    std::chrono::milliseconds splashTime{2000};
    std::function<void(const QString& device)> useDevice;  ///< gives the serial port its device

    /// Whether a device is there; empty for asking the system.
    std::function<bool(const QString& device)> isPresent;

    /// Shows how far a transfer is on the program's icon in taskbar or dock, from 0 to 1; a negative number
    /// takes it away. Empty where nothing can show it.
    std::function<void(double fraction)> showProgress;

    /// Tells somebody who works in another window. Empty where nothing can tell.
    std::function<void(const QString& text)> notify;
};

}  // namespace rqm5
