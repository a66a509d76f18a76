#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <string>

#include "link/reply_frames.h"
#include "link/serial_port.h"

namespace rqm5 {

/// The two primitives of the wire: one command out, one reply back.
///
/// A wait sleeps in the event loop until bytes come, the 500 ms timer ends, the port fails or Cancel is
/// called. The port is opened when it is not open and stays open.
class RadioLink : public QObject
{
    Q_OBJECT

  public:
    static constexpr std::chrono::milliseconds kTimeOut{500};

    explicit RadioLink(SerialPort& port, QObject* parent = nullptr);

    /// Sends one read command and waits for its reply.
    ///
    /// The reply is the 36-character frame CR LF + 32 hex digits + CR LF, whatever came before it on the
    /// line (a receiver echoes the command). Takes at most 500 ms.
    ///
    /// \param command  "QT~F" + 4-digit block address + "R" + CR
    /// \return the frame, or "ERROR00" (port failed), "ERROR01" (too short), "ERROR02" (not a frame)
    std::string SendReadCommand(const std::string& command);

    /// Sends one write command and waits for its acknowledgement, which counts from 46 characters on but
    /// ends the wait early only from 47 on.
    ///
    /// \param command  "QT~F" + 4-digit block address + "W" + 32 hex digits + CR
    /// \return 0 "OK" received, 1 something else received, 2 too short, 3 port failed
    int SendWriteCommand(const std::string& command);

    /// What the last command received (at least the last 1024 characters of it), for messages and
    /// diagnostics.
    const std::string& LastReceived() const { return accumulator_; }

    /// How long the last command took, from its sending to the end of its wait.
    std::chrono::microseconds LastDuration() const { return lastDuration_; }

    SerialPort& Port() { return port_; }

    /// Ends the wait that runs now, as if its time had run out. Whoever calls it also makes the transfer's
    /// observer say that it is cancelled.
    void Cancel();

    /// Another time-out than the receiver's 500 ms: for tests, which would otherwise wait minutes.
    void SetTimeOut(std::chrono::milliseconds timeOut) { Timer1_.setInterval(timeOut); }

  signals:
    /// A command was sent and its wait has ended; LastReceived and LastDuration tell the rest.
    void Exchanged(const std::string& command, bool portFailed);

  private:
    bool Exchange(const std::string& command, std::size_t endsFrom);
    bool SendAndWait(const std::string& command, std::size_t endsFrom);
    void Collect();
    void EndWait();

    SerialPort& port_;
    QTimer Timer1_;
    QEventLoop loop_;
    QElapsedTimer clock_;
    std::chrono::microseconds lastDuration_{0};
    std::string accumulator_;
    std::size_t endsFrom_ = 0;  ///< a reply of this length ends the wait when it ends in CR LF
    bool hasFailed_ = false;
};

}  // namespace rqm5
