#include "link/receiver_search.h"

#include <QFileInfo>
#include <QSet>

#include "link/com_ports.h"
#include "link/memory_map.h"
#include "link/qt_serial_port.h"
#include "link/raw_read.h"
#include "settings/settings_codec.h"

namespace rqm5 {

ReceiverSearch::Outcome ReceiverSearch::Run(const QStringList& devices)
{
    Outcome outcome;
    isRunning_ = true;
    isStopped_ = false;
    for (const QString& device : devices) {
        emit Asking(device);
        if (isStopped_ || Ask(device, outcome))
            break;
    }
    isRunning_ = false;
    return outcome;
}

bool ReceiverSearch::Ask(const QString& device, Outcome& outcome)
{
    QtSerialPort port(device);
    if (!port.Open()) {
        if (port.Fault() == PortFault::Busy)
            outcome.busy << device;
        if (port.Fault() == PortFault::NoPermission)
            outcome.denied << device;
        return false;
    }
    RadioLink link(port);
    link_ = &link;
    const RawReply reply = ReadRaw(link, AreaOf(Area::Settings).address);
    link_ = nullptr;
    port.Close();
    ++outcome.asked;
    if (!reply.IsFrame())
        return false;
    outcome.device = device;
    outcome.model = ModelOf(reply.block);
    return true;
}

void ReceiverSearch::Stop()
{
    isStopped_ = true;
    if (link_ != nullptr)
        link_->Cancel();
}

QStringList PresentDevices()
{
    QStringList devices;
    QSet<QString> nodes;
    for (const PortInfo& port : ComPorts() + SystemPorts()) {
        if (!port.isPresent)
            continue;
        // Several names may stand for one port.
        const QString node = QFileInfo(DeviceNode(port.device)).canonicalFilePath();
        const QString key = node.isEmpty() ? port.device : node;
        if (!nodes.contains(key))
            devices << port.device;
        nodes.insert(key);
    }
    return devices;
}

}  // namespace rqm5
