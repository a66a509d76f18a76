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
    QString cacheFolder;  ///< where what is known of receivers is kept for the next run; empty: nowhere
    std::chrono::milliseconds recoveryDelay{5000};
    std::chrono::milliseconds splashTime{2000};
    std::function<void(const QString& device)> useDevice;  ///< gives the serial port its device
};

}  // namespace rqm5
