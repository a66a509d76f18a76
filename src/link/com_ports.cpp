#include "link/com_ports.h"

#include <QSerialPortInfo>
#include <QSettings>

namespace rqm5 {
namespace {

constexpr char kOrganisation[] = "Tervan";
constexpr char kApplication[] = "Tervan RQ-M5 Clone Utility";

QString DescriptionOf(const QSerialPortInfo& port)
{
    return QStringList{port.manufacturer(), port.description()}.join(QLatin1Char(' ')).simplified();
}

QList<PortInfo> ListedPorts()
{
    QList<PortInfo> ports;
    for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) {
        const QString device = OfferedName(port);
        if (!device.isEmpty())
            ports.append({0, device, DescriptionOf(port), true});
    }
    return ports;
}

QString SettingsKey(int number)
{
    return QStringLiteral("Ports/COM%1").arg(number);
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
        port.isPresent = port.isPresent || MayHaveHardware(port.device);
        ports.append(port);
    }
    return ports;
}

bool IsDevicePresent(const QString& device)
{
    return LookAt(device) != DeviceLook::NotThere;
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
