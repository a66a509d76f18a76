#include "link/com_ports.h"

#include <QFileInfo>
#include <QSerialPortInfo>
#include <QSettings>

namespace rqm5 {
namespace {

constexpr char kOrganisation[] = "Tervan";
constexpr char kApplication[] = "Tervan RQ-M5 Clone Utility";

/// COM numbers from `first` on stand for the devices `prefix` + 0, 1, ...
struct UsualNames
{
    int first;
    const char* prefix;
};

#ifdef Q_OS_LINUX
constexpr UsualNames kUsualNames[] = {{10, "/dev/ttyACM"}, {5, "/dev/ttyUSB"}, {1, "/dev/ttyS"}};
#endif

QString DescriptionOf(const QSerialPortInfo& port)
{
    return QStringList{port.manufacturer(), port.description()}.join(QLatin1Char(' ')).simplified();
}

QList<PortInfo> ListedPorts()
{
    QList<PortInfo> ports;
    for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) {
#ifdef Q_OS_WIN
        const QString device = port.portName();
#else
        const QString device = port.systemLocation();
#endif
        ports.append({0, device, DescriptionOf(port), true});
    }
    return ports;
}

QString UsualDevice(int number)
{
#if defined(Q_OS_WIN)
    return QStringLiteral("COM%1").arg(number);
#elif defined(Q_OS_LINUX)
    for (const UsualNames& names : kUsualNames)
        if (number >= names.first)
            return QString::fromLatin1(names.prefix) + QString::number(number - names.first);
    return {};
#else
    const QList<PortInfo> ports = ListedPorts();
    return number <= ports.size() ? ports[number - 1].device : QString();
#endif
}

QString SettingsKey(int number)
{
    return QStringLiteral("Ports/COM%1").arg(number);
}

bool IsPresent(const QString& device, bool isListed)
{
#ifdef Q_OS_WIN
    return isListed;
#else
    const QFileInfo node(DeviceNode(device));
    if (isListed || !node.exists())
        return isListed;
    // Nodes for built-in ports exist on every machine; the system lists those that have hardware, as far
    // as it is allowed to look.
    return !device.startsWith(QStringLiteral("/dev/ttyS")) || !node.isReadable();
#endif
}

}  // namespace

QString DeviceOfComPort(int number)
{
    if (number < 1 || number > kComPorts)
        return {};
    const QString variable = QStringLiteral("RQM5_COM%1").arg(number);
    QString fromEnvironment = qEnvironmentVariable(variable.toLatin1().constData());
    if (!fromEnvironment.isEmpty())
        return fromEnvironment;
    const QSettings settings(QString::fromLatin1(kOrganisation), QString::fromLatin1(kApplication));
    const QString chosen = settings.value(SettingsKey(number)).toString();
    return chosen.isEmpty() ? UsualDevice(number) : chosen;
}

void SetDeviceOfComPort(int number, const QString& device)
{
    QSettings settings(QString::fromLatin1(kOrganisation), QString::fromLatin1(kApplication));
    if (device.isEmpty())
        settings.remove(SettingsKey(number));
    else
        settings.setValue(SettingsKey(number), device);
}

QList<PortInfo> ComPorts()
{
    const QList<PortInfo> listed = ListedPorts();
    QList<PortInfo> ports;
    for (int number = 1; number <= kComPorts; ++number) {
        PortInfo port{number, DeviceOfComPort(number), {}, false};
        for (const PortInfo& known : listed)
            if (known.device == port.device)
                port = {number, known.device, known.description, true};
        port.isPresent = IsPresent(port.device, port.isPresent);
        ports.append(port);
    }
    return ports;
}

QString DeviceNode(const QString& device)
{
#ifdef Q_OS_WIN
    return device;
#else
    return device.contains(QLatin1Char('/')) ? device : QStringLiteral("/dev/") + device;
#endif
}

bool IsDevicePresent(const QString& device)
{
#ifdef Q_OS_WIN
    for (const PortInfo& port : ListedPorts())
        if (port.device == device)
            return true;
    return false;
#else
    return !device.isEmpty() && QFileInfo::exists(DeviceNode(device));
#endif
}

QList<PortInfo> SystemPorts()
{
    QList<PortInfo> ports = ListedPorts();
    for (PortInfo& port : ports)
        for (int number = kComPorts; number >= 1; --number)
            if (DeviceOfComPort(number) == port.device)
                port.number = number;
    return ports;
}

}  // namespace rqm5
