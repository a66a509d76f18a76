#include <QFileInfo>

#include "platform/serial_ports.h"

namespace rqm5 {
namespace {

/// COM numbers from `first` on stand for the devices `prefix` + 0, 1, ...
struct UsualNames
{
    int first;
    const char* prefix;
};

constexpr UsualNames kUsualNames[] = {{10, "/dev/ttyACM"}, {5, "/dev/ttyUSB"}, {1, "/dev/ttyS"}};

QString UserName()
{
    const QString name = qEnvironmentVariable("USER");
    return name.isEmpty() ? QStringLiteral("$USER") : name;
}

}  // namespace

QString OfferedName(const QSerialPortInfo& port)
{
    return port.systemLocation();
}

QString UsualDevice(int number)
{
    for (const UsualNames& names : kUsualNames)
        if (number >= names.first)
            return QString::fromLatin1(names.prefix) + QString::number(number - names.first);
    return {};
}

bool MayHaveHardware(const QString& device)
{
    const QFileInfo node(DeviceNode(device));
    // Nodes for built-in ports exist on every machine; the system lists those that have hardware, as far
    // as it is allowed to look.
    return !device.isEmpty() && node.exists() &&
           (!device.startsWith(QStringLiteral("/dev/ttyS")) || !node.isReadable());
}

QString PermissionCommand(const QString& device)
{
    const QFileInfo node(DeviceNode(device));
    const QString group = node.group();
    const bool groupMayUse = node.permission(QFile::ReadGroup) && node.permission(QFile::WriteGroup);
    if (group.isEmpty() || group == QLatin1String("root") || !groupMayUse)
        return {};
    return QStringLiteral("sudo usermod -aG %1 %2").arg(group, UserName());
}

}  // namespace rqm5
