#include "link/link_problems.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

#include "image/memory_block.h"
#include "link/com_ports.h"

namespace rqm5 {
namespace {

QString Translate(const char* text)
{
    return QCoreApplication::translate("LinkProblem", text);
}

QString PermissionRemedy(const QString& device)
{
    const QString command = PermissionCommand(device);
    if (command.isEmpty())
        return Translate("Ask the administrator of this computer for access to the device.");
    return Translate("The group \"%1\" may use it. Add yourself with \"%2\", then log out and in again.")
        .arg(QFileInfo(DeviceNode(device)).group(), command);
}

QString PresentPorts()
{
    QStringList names;
    for (const PortInfo& port : SystemPorts())
        names << (port.description.isEmpty()
                      ? port.device
                      : port.device + QStringLiteral(" (") + port.description + QLatin1Char(')'));
    if (names.isEmpty())
        return Translate("No serial port was found. Plug the adapter in and try again.");
    return Translate("Ports found: %1.").arg(names.join(QStringLiteral(", ")));
}

QString WhatCameBack(ReplyOutcome outcome)
{
    switch (outcome) {
        case ReplyOutcome::Nothing:
            return Translate("The receiver sent nothing.");
        case ReplyOutcome::TooShort:
            return Translate("The reply was too short.");
        case ReplyOutcome::Garbled:
            return Translate("The reply was garbled.");
        default:
            return Translate("The receiver did not answer OK.");
    }
}

}  // namespace

QString PortRemedy(const QString& device, PortFault fault)
{
    switch (fault) {
        case PortFault::NotFound:
            return PresentPorts();
        case PortFault::NoPermission:
            return PermissionRemedy(device);
        case PortFault::Busy:
            return Translate("Another program uses the port. Close it and try again.");
        case PortFault::NotAPort:
            return Translate("Choose another port. %1").arg(PresentPorts());
        case PortFault::Gone:
            return Translate("Plug the adapter in again and repeat the operation.");
        default:
            return Translate("Check the port and the cable, then repeat the operation.");
    }
}

Problem ComPortProblem(const SerialPort& port)
{
    const QString device = port.Device().isEmpty() ? Translate("(no device)") : port.Device();
    const QString reason = port.Reason().isEmpty() ? Translate("the port failed") : port.Reason();
    const QString text = device + QStringLiteral(": ") + reason + QStringLiteral(". ") +
                         PortRemedy(port.Device(), port.Fault());
    const bool isForbidden = port.Fault() == PortFault::NoPermission;
    return {.text = kComPortError,
            .details = text.toStdString(),
            .command = isForbidden ? PermissionCommand(port.Device()).toStdString() : std::string()};
}

Problem CommunicationProblem(int address, bool written, int attempts, ReplyOutcome outcome)
{
    if (outcome == ReplyOutcome::Restless)
        return {
            kCommunicationError,
            Translate("Block %1 was not asked for: replies had been missing, and then the line did not fall "
                      "silent. Check the cable, and that nothing but the receiver is on the line.")
                .arg(QString::fromStdString(HexAddress(address)))
                .toStdString()};
    const QString what = written ? Translate("Block %1 could not be written in %2. %3 %4")
                                 : Translate("Block %1 could not be read in %2. %3 %4");
    const QString tries = attempts == 1 ? Translate("one attempt") : Translate("%1 attempts").arg(attempts);
    const QString check =
        Translate("Check the cable, that the receiver is switched on and that it is in clone mode.");
    return {kCommunicationError, what.arg(QString::fromStdString(HexAddress(address)))
                                     .arg(tries)
                                     .arg(WhatCameBack(outcome), check)
                                     .toStdString()};
}

}  // namespace rqm5
