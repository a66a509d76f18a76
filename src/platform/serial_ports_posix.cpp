#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "platform/serial_ports.h"

namespace rqm5 {

bool AreComNamesDevices()
{
    return false;
}

QString DeviceNode(const QString& device)
{
    return device.contains(QLatin1Char('/')) ? device : QStringLiteral("/dev/") + device;
}

DeviceLook LookAt(const QString& device)
{
    const QFileInfo node(DeviceNode(device));
    if (device.isEmpty() || !node.exists())
        return DeviceLook::NotThere;
    return node.isDir() || node.isFile() ? DeviceLook::NoPort : DeviceLook::CanBeTried;
}

int TryPort(const QString& device)
{
    const QByteArray node = QFile::encodeName(DeviceNode(device));
    const int file = open(node.constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return errno;
    termios settings = {};
    const bool isPort = tcgetattr(file, &settings) == 0;
    close(file);
    return isPort ? 0 : ENOTTY;
}

}  // namespace rqm5
