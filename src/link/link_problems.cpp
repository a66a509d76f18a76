#include "link/link_problems.h"

#include <QFileInfo>
#include <QStringList>

#include "image/memory_block.h"
#include "link/com_ports.h"

namespace rqm5 {
namespace {

Message PermissionRemedy(const QString& device)
{
    const QString command = PermissionCommand(device);
    if (command.isEmpty())
        return MESSAGE("Ask the administrator of this computer for access to the device.");
    return {MESSAGE("The group \"%1\" may use it. Add yourself with \"%2\", then log out and in again."),
            {QFileInfo(DeviceNode(device)).group().toStdString(), command.toStdString()}};
}

Message PresentPorts()
{
    QStringList names;
    for (const PortInfo& port : SystemPorts())
        names << (port.description.isEmpty()
                      ? port.device
                      : port.device + QStringLiteral(" (") + port.description + QLatin1Char(')'));
    if (names.isEmpty())
        return MESSAGE("No serial port was found. Plug the adapter in and try again.");
    return {MESSAGE("Ports found: %1."), {names.join(QStringLiteral(", ")).toStdString()}};
}

Message WhatCameBack(ReplyOutcome outcome)
{
    switch (outcome) {
        case ReplyOutcome::Nothing:
            return MESSAGE("The receiver sent nothing.");
        case ReplyOutcome::TooShort:
            return MESSAGE("The reply was too short.");
        case ReplyOutcome::Garbled:
            return MESSAGE("The reply was garbled.");
        default:
            return MESSAGE("The receiver did not answer OK.");
    }
}

/// A text of the system or the user, or what stands for none.
Message TextOr(const QString& text, const char* none)
{
    return text.isEmpty() ? Message(none) : Message(text.toStdString());
}

}  // namespace

Message PortRemedy(const QString& device, PortFault fault)
{
    switch (fault) {
        case PortFault::NotFound:
            return PresentPorts();
        case PortFault::NoPermission:
            return PermissionRemedy(device);
        case PortFault::Busy:
            return MESSAGE("Another program uses the port. Close it and try again.");
        case PortFault::NotAPort:
            return {MESSAGE("Choose another port. %1"), {PresentPorts()}};
        case PortFault::Gone:
            return MESSAGE("Plug the adapter in again and repeat the operation.");
        default:
            return MESSAGE("Check the port and the cable, then repeat the operation.");
    }
}

Problem ComPortProblem(const SerialPort& port)
{
    const bool isForbidden = port.Fault() == PortFault::NoPermission;
    return {.text = kComPortError,
            .details = {MESSAGE("%1: %2. %3"),
                        {TextOr(port.Device(), MESSAGE("(no device)")),
                         TextOr(port.Reason(), MESSAGE("the port failed")),
                         PortRemedy(port.Device(), port.Fault())}},
            .command = isForbidden ? PermissionCommand(port.Device()).toStdString() : std::string()};
}

Problem CommunicationProblem(int address, bool written, int attempts, ReplyOutcome outcome)
{
    if (outcome == ReplyOutcome::Restless)
        return {
            kCommunicationError,
            {MESSAGE("Block %1 was not asked for: replies had been missing, and then the line did not fall "
                     "silent. Check the cable, and that nothing but the receiver is on the line."),
             {HexAddress(address)}}};
    const Message tries = Counted(attempts, MESSAGE("one attempt"), MESSAGE("%1 attempts"));
    const Message check =
        MESSAGE("Check the cable, that the receiver is switched on and that it is in clone mode.");
    return {kCommunicationError,
            {written ? MESSAGE("Block %1 could not be written in %2. %3 %4")
                     : MESSAGE("Block %1 could not be read in %2. %3 %4"),
             {HexAddress(address), tries, WhatCameBack(outcome), check}}};
}

}  // namespace rqm5
