#include "link/qt_serial_port.h"

#include <QFileInfo>
#include <QSignalBlocker>

#include "link/com_ports.h"

namespace rqm5 {
namespace {

/// What Qt says of a port that fails; its own translations have few languages of it.
[[maybe_unused]] constexpr const char* kReasons[] = {
    QT_TRANSLATE_NOOP("QSerialPort", "Permission error while locking the device"),
    QT_TRANSLATE_NOOP("QSerialPort", "Permission error while creating lock file"),
    QT_TRANSLATE_NOOP("QSerialPort", "Error reading from device"),
    QT_TRANSLATE_NOOP("QSerialPort", "Error writing to device"),
    QT_TRANSLATE_NOOP("QSerialPort", "Operation timed out"),
    QT_TRANSLATE_NOOP("QSerialPort", "Unsupported open mode"),
};

PortFault FaultOf(QSerialPort::SerialPortError error, const QFileInfo& node)
{
    switch (error) {
        case QSerialPort::DeviceNotFoundError:
            return PortFault::NotFound;
        case QSerialPort::PermissionError:
            // A port that somebody else holds is refused with the same code.
            return node.isReadable() && node.isWritable() ? PortFault::Busy : PortFault::NoPermission;
        case QSerialPort::OpenError:
            return PortFault::Busy;
        case QSerialPort::ResourceError:
        case QSerialPort::UnsupportedOperationError:
            // A node without hardware behind it opens, but has no line settings.
            return PortFault::NotAPort;
        default:
            return PortFault::Other;
    }
}

/// Errors that end the use of an open port. The others tell of things that pseudo-terminals and some
/// adapters do not have, such as modem lines, and of waits that ended.
bool IsFatal(QSerialPort::SerialPortError error)
{
    return error == QSerialPort::ResourceError || error == QSerialPort::ReadError ||
           error == QSerialPort::WriteError || error == QSerialPort::PermissionError ||
           error == QSerialPort::DeviceNotFoundError;
}

}  // namespace

QtSerialPort::QtSerialPort(const QString& device, QObject* parent) : SerialPort(parent), device_(device)
{
    port_.setBaudRate(QSerialPort::Baud9600);
    port_.setDataBits(QSerialPort::Data8);
    port_.setParity(QSerialPort::NoParity);
    port_.setStopBits(QSerialPort::OneStop);
    port_.setFlowControl(QSerialPort::NoFlowControl);
    connect(&port_, &QSerialPort::readyRead, this, &SerialPort::Received);
    connect(&port_, &QSerialPort::errorOccurred, this, &QtSerialPort::OnError);
}

void QtSerialPort::SetDevice(const QString& device)
{
    Close();
    device_ = device;
}

bool QtSerialPort::Open()
{
    if (IsOpen())
        return true;
    Close();
    const DeviceLook look = LookAt(device_);
    if (look == DeviceLook::NotThere)
        return Refuse(PortFault::NotFound, tr("no such device"));
    if (look == DeviceLook::NoPort)
        return Refuse(PortFault::NotAPort, tr("not a serial port"));
    // A name with a folder is a path from here on, not one below the folder of devices.
    const bool isPath = device_.contains(QLatin1Char('/'));
    port_.setPortName(isPath ? QFileInfo(device_).absoluteFilePath() : device_);
    const QSignalBlocker quiet(port_);
    if (!port_.open(QIODevice::ReadWrite)) {
        const PortFault fault = FaultOf(port_.error(), QFileInfo(DeviceNode(device_)));
        const QString reason = port_.errorString();
        // The system's own words tell little of a device that is none.
        return Refuse(fault,
                      fault == PortFault::NotAPort ? tr("not a serial port (%1)").arg(reason) : reason);
    }
    port_.clearError();
    fault_ = PortFault::None;
    reason_.clear();
    return true;
}

void QtSerialPort::Close()
{
    if (port_.isOpen())
        port_.close();
    isGone_ = false;
}

bool QtSerialPort::IsOpen() const
{
    return port_.isOpen() && !isGone_;
}

bool QtSerialPort::Send(const std::string& text)
{
    if (!IsOpen())
        return false;
    const auto length = static_cast<qint64>(text.size());
    if (port_.write(text.data(), length) != length) {
        Lose();
        return false;
    }
    // Without this the text would leave only once the event loop runs.
    port_.flush();
    return IsOpen();
}

std::string QtSerialPort::TakeReceived()
{
    if (!IsOpen())
        return {};
    if (port_.bytesAvailable() == 0) {
        // What the system already holds counts as received, even when no event loop has run since.
        const QSignalBlocker quiet(port_);
        port_.waitForReadyRead(0);
    }
    std::string text = port_.readAll().toStdString();
    if (IsFatal(port_.error()))
        Lose();
    return text;
}

bool QtSerialPort::Refuse(PortFault fault, const QString& reason)
{
    fault_ = fault;
    reason_ = reason;
    return false;
}

void QtSerialPort::Lose()
{
    if (isGone_)
        return;
    isGone_ = true;
    // The system's own words tell of the call that noticed, not of what happened.
    Refuse(PortFault::Gone, tr("the device has gone"));
    // Not closed at once: this may run inside the port's own signal.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (isGone_)
                port_.close();
        },
        Qt::QueuedConnection);
    emit Failed();
}

void QtSerialPort::OnError(QSerialPort::SerialPortError error)
{
    if (IsFatal(error) && port_.isOpen())
        Lose();
}

}  // namespace rqm5
