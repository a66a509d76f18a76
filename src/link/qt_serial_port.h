#pragma once

#include <QSerialPort>

#include "link/serial_port.h"

namespace rqm5 {

/// The real serial line. Works with pseudo-terminals and with adapters that have no modem lines.
class QtSerialPort : public SerialPort
{
    Q_OBJECT

  public:
    /// \param device  path or name of the port; it is not opened before Open() is called
    explicit QtSerialPort(const QString& device, QObject* parent = nullptr);

    /// Closes the port when it is open; the next Open() opens the new device.
    void SetDevice(const QString& device);

    bool Open() override;
    void Close() override;
    bool IsOpen() const override;
    bool Send(const std::string& text) override;
    std::string TakeReceived() override;
    QString Device() const override { return device_; }
    PortFault Fault() const override { return fault_; }
    QString Reason() const override { return reason_; }

  private:
    bool Refuse(PortFault fault, const QString& reason);
    void Lose();
    void OnError(QSerialPort::SerialPortError error);

    QSerialPort port_;
    QString device_;
    QString reason_;
    PortFault fault_ = PortFault::None;
    bool isGone_ = false;  ///< the device went away under an open port
};

}  // namespace rqm5
