#include <cerrno>
#include <ostream>

#include "cli/channel_output.h"
#include "cli/command.h"
#include "cli/text_table.h"
#include "image/display_text.h"
#include "link/com_ports.h"
#include "link/link_problems.h"
#include "link/serial_port.h"

namespace rqm5 {
namespace {

PortFault FaultOf(int error)
{
    switch (error) {
        case 0:
            return PortFault::None;
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

struct Port
{
    PortInfo info;
    PortFault fault;
};

std::vector<Port> Ports()
{
    QList<PortInfo> found = ComPorts();
    for (const PortInfo& port : SystemPorts())
        if (port.number == 0)
            found.append(port);
    std::vector<Port> ports;
    for (const PortInfo& port : found)
        ports.push_back({port, port.device.isEmpty() ? PortFault::NotFound : FaultOf(TryPort(port.device))});
    return ports;
}

void WriteJson(const std::vector<Port>& ports, Console& console)
{
    JsonWriter json(console.out);
    json.Open('[');
    for (const auto& [info, fault] : ports) {
        json.Open('{');
        json.Key("com");
        info.number > 0 ? json.Number(info.number) : json.Null();
        json.Member("device", info.device.toStdString());
        json.Member("state", StateText(fault));
        json.Member("description", info.description.toStdString());
        json.Close('}');
    }
    json.Close(']');
    console.out << '\n';
}

TextTable TableOf(const std::vector<Port>& ports)
{
    TextTable table;
    table.AddRow({"Port", "Device", "State", "Description"}, Paint::Bold);
    for (const auto& [info, fault] : ports)
        table.AddRow({info.number > 0 ? "COM " + std::to_string(info.number) : std::string("-"),
                      info.device.toStdString(), StateText(fault), info.description.toStdString()},
                     fault == PortFault::None ? Paint::Green : Paint::None);
    return table;
}

}  // namespace

Status RunPorts(const Arguments& arguments, Console& console)
{
    const std::vector<Port> ports = Ports();
    const Form form = FormOf(arguments);
    if (form == Form::Json) {
        WriteJson(ports, console);
        return Status::Done;
    }
    Print(TableOf(ports), form, console);
    Message remedy;
    for (const auto& [info, fault] : ports)
        if (fault == PortFault::NoPermission)
            remedy = PortRemedy(info.device, fault);
    if (!remedy.empty() && form == Form::Columns)
        console.out << VisibleText(remedy.English()) << '\n';
    else if (!remedy.empty())
        Say(console, remedy);
    return Status::Done;
}

}  // namespace rqm5
