#include <QSerialPort>
#include <cerrno>

#include "platform/serial_ports.h"

namespace rqm5 {

QString OfferedName(const QSerialPortInfo& port)
{
    return port.portName();
}

QString UsualDevice(int number)
{
    return QStringLiteral("COM%1").arg(number);
}

bool AreComNamesDevices()
{
    return true;
}

QString DeviceNode(const QString& device)
{
    return device;
}

// There are no nodes to look at; opening the port tells.
DeviceLook LookAt(const QString& device)
{
    if (device.isEmpty())
        return DeviceLook::NotThere;
    for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts())
        if (port.portName().compare(device, Qt::CaseInsensitive) == 0 || port.systemLocation() == device)
            return DeviceLook::CanBeTried;
    return DeviceLook::NotThere;
}

bool MayHaveHardware(const QString& /*device*/)
{
    return false;
}

int TryPort(const QString& device)
{
    QSerialPort port(device);
    if (port.open(QIODevice::ReadWrite))
        return 0;
    switch (port.error()) {
        case QSerialPort::DeviceNotFoundError:
            return ENOENT;
        case QSerialPort::PermissionError:
            return EBUSY;  // the system says the same of a port that somebody else has open
        default:
            return ENOTTY;
    }
}

QString PermissionCommand(const QString& /*device*/)
{
    return {};
}

}  // namespace rqm5
