#include <QFile>
#include <ostream>

#include "cli/command.h"
#include "cli/text_table.h"
#include "image/display_text.h"
#include "link/com_ports.h"
#include "link/link_problems.h"
#include "link/qt_serial_port.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace rqm5 {
namespace {

#ifdef Q_OS_UNIX
PortFault FaultOf(int error)
{
    switch (error) {
        case ENOENT:
        case ENODEV:
        case ENXIO:
            return PortFault::NotFound;
        case EACCES:
        case EPERM:
            return PortFault::NoPermission;
        case EBUSY:
            return PortFault::Busy;
        default:
            return PortFault::NotAPort;
    }
}

/// Opens and closes the device without setting it up, so that a program that uses it is not disturbed.
PortFault TryToOpen(const QString& device)
{
    const int file = open(QFile::encodeName(device).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return FaultOf(errno);
    termios settings = {};
    const bool isPort = tcgetattr(file, &settings) == 0;
    close(file);
    return isPort ? PortFault::None : PortFault::NotAPort;
}
#else
PortFault TryToOpen(const QString& device)
{
    QtSerialPort port(device);
    return port.Open() ? PortFault::None : port.Fault();
}
#endif

std::string StateText(PortFault fault)
{
    switch (fault) {
        case PortFault::None:
            return "can be opened";
        case PortFault::NotFound:
            return "not there";
        case PortFault::NoPermission:
            return "no permission";
        case PortFault::Busy:
            return "in use";
        default:
            return "not a serial port";
    }
}

/// \return the fault of the port
PortFault AddPort(const PortInfo& port, TextTable& table)
{
    const PortFault fault = port.device.isEmpty() ? PortFault::NotFound : TryToOpen(DeviceNode(port.device));
    table.AddRow({port.number > 0 ? "COM " + std::to_string(port.number) : std::string("-"),
                  port.device.toStdString(), StateText(fault), port.description.toStdString()});
    return fault;
}

}  // namespace

Status RunPorts(const Arguments& /*arguments*/, Console& console)
{
    TextTable table;
    table.AddRow({"Port", "Device", "State", "Description"});
    QList<PortInfo> ports = ComPorts();
    for (const PortInfo& port : SystemPorts())
        if (port.number == 0)
            ports.append(port);
    QString remedy;
    for (const PortInfo& port : ports)
        if (AddPort(port, table) == PortFault::NoPermission)
            remedy = PortRemedy(port.device, PortFault::NoPermission);
    table.Print(console.out);
    if (!remedy.isEmpty())
        console.out << VisibleText(remedy.toStdString()) << '\n';
    return Status::Done;
}

}  // namespace rqm5
