#pragma once

#include <QSerialPortInfo>
#include <QString>

namespace rqm5 {

/// The name under which a port that the system lists is opened; empty for one that is not to be offered.
QString OfferedName(const QSerialPortInfo& port);

/// The system's usual device for a COM number; empty when it has none.
QString UsualDevice(int number);

/// True where COM15 is the name of a device and not a number that is too high.
bool AreComNamesDevices();

/// Where the system keeps a device: a bare name such as ttyUSB0 stands for a node in /dev.
QString DeviceNode(const QString& device);

/// What shows of a device without opening it.
enum class DeviceLook { NotThere, NoPort, CanBeTried };
DeviceLook LookAt(const QString& device);

/// True for a device that may have hardware behind it although the system does not list it.
bool MayHaveHardware(const QString& device);

/// Opens and closes a device without setting it up, so that a program that uses it is not disturbed.
/// \return 0, or why it is none that can be used: ENOENT, EACCES, EBUSY, ENOTTY, or another error number
int TryPort(const QString& device);

/// The command that gives the user access to a device; empty when only the administrator of the computer can
/// tell.
QString PermissionCommand(const QString& device);

}  // namespace rqm5
