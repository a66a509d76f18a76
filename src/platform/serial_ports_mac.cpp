#include <QFileInfo>

#include "platform/serial_ports.h"

namespace rqm5 {

/// Each port has two nodes; the other one, /dev/tty.*, waits for a modem's carrier when it is opened.
QString OfferedName(const QSerialPortInfo& port)
{
    const QString node = port.systemLocation();
    return node.startsWith(QStringLiteral("/dev/cu.")) ? node : QString();
}

QString UsualDevice(int number)
{
    for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts())
        if (const QString device = OfferedName(port); !device.isEmpty() && --number == 0)
            return device;
    return {};
}

bool MayHaveHardware(const QString& device)
{
    return !device.isEmpty() && QFileInfo::exists(DeviceNode(device));
}

QString PermissionCommand(const QString& /*device*/)
{
    return {};
}

}  // namespace rqm5
