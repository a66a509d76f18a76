#pragma once

#include <QObject>
#include <string>

namespace rqm5 {

/// Why a port failed, as far as a remedy depends on it.
enum class PortFault { None, NotFound, NoPermission, Busy, NotAPort, Gone, Other };

/// A serial line, as the radio link sees it: 9600 baud, 8 data bits, no parity, 1 stop bit, no handshake.
///
/// The real one is QtSerialPort; tests have a scripted one.
class SerialPort : public QObject
{
    Q_OBJECT

  public:
    using QObject::QObject;

    /// Opens the device; does nothing when it is open. \return false: Fault() and Reason() say why
    virtual bool Open() = 0;
    virtual void Close() = 0;

    /// False also once the device has gone (adapter pulled out).
    virtual bool IsOpen() const = 0;

    /// Sends text at once. \return false when the port failed
    virtual bool Send(const std::string& text) = 0;

    /// Everything received so far, which is then forgotten.
    virtual std::string TakeReceived() = 0;

    virtual QString Device() const = 0;
    virtual PortFault Fault() const = 0;
    virtual QString Reason() const = 0;  ///< the system's own words for the last fault

  signals:
    void Received();  ///< more bytes can be taken
    void Failed();    ///< the port failed or went away
};

/// True when the port was open and went away.
inline bool HasGone(const SerialPort& port)
{
    return port.Fault() == PortFault::Gone;
}

}  // namespace rqm5
