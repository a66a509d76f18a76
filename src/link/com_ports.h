#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "platform/serial_ports.h"

namespace rqm5 {

inline constexpr int kComPorts = 14;  ///< COM numbers are 1 to 14

/// The device that a COM number 1 to 14 stands for: the environment variable RQM5_COMn, else the user's
/// own choice (settings key Ports/COMn), else the system's usual name. Empty when there is none.
QString DeviceOfComPort(int number);

/// Keeps the user's own choice for a COM number; an empty device forgets it.
void SetDeviceOfComPort(int number, const QString& device);

/// A serial port that the system lists, or a COM number's device.
struct PortInfo
{
    int number = 0;       ///< COM number, 0 for a device that none stands for
    QString device;       ///< path or name
    QString description;  ///< e.g. "FTDI USB serial"; empty when not known
    bool isPresent = false;
};

/// The devices of COM 1 to 14, in order.
QList<PortInfo> ComPorts();

/// True while a device is there, as far as it shows without opening it.
bool IsDevicePresent(const QString& device);

/// Every serial port that the system lists now.
QList<PortInfo> SystemPorts();

}  // namespace rqm5
