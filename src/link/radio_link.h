#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <string>

#include "link/receiver_knowledge.h"
#include "link/reply_frames.h"
#include "link/serial_port.h"

namespace rqm5 {

/// How a wait for a silent line ended.
enum class Silence {
    Kept,
    Broken,  ///< characters came until the time was over
    Stopped,
    PortFailed,
};

/// The two primitives of the wire: one command out, one reply back; and the pauses that keep a late reply
/// from passing for another one's. How long those are goes by the time-out.
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

    /// What had come before the last command and was thrown away.
    const std::string& LastDiscarded() const { return discarded_; }

    /// True when a command ended without its reply, which may still come. The link remembers it from one
    /// operation to the next, until the line has been silent long enough. A device that went away has taken
    /// with it what was under way.
    bool MayStillReply() const { return mayStillReply_; }

    /// Waits after a failed attempt: for 50 ms of silence, at most 500 ms.
    Silence Rest();

    /// Waits for what may still come: for 100 ms of silence, the time of two exchanges. As many replies may
    /// come as a block has attempts, so that it may take as many time-outs.
    Silence Settle();

    /// Hears for one time-out whether anything still comes, and that out.
    Silence Listen();

    /// What came during the last of these waits; it is thrown away.
    const std::string& LastHeard() const { return heard_; }

    SerialPort& Port() { return port_; }

    /// What is known of the receiver at the port.
    ReceiverKnowledge& Knowledge();

    /// Ends the wait that runs now, as if its time had run out. Whoever calls it also makes the transfer's
    /// observer say that it is cancelled.
    void Cancel();

    /// Another time-out than the receiver's 500 ms, with shorter pauses: for tests, which would otherwise
    /// wait minutes.
    void SetTimeOut(std::chrono::milliseconds timeOut) { Timer1_.setInterval(timeOut); }

  signals:
    /// A command was sent and its wait has ended; LastReceived and LastDuration tell the rest.
    void Exchanged(const std::string& command, bool portFailed);

  private:
    bool Exchange(const std::string& command, std::size_t endsFrom);
    bool SendAndWait(const std::string& command, std::size_t endsFrom);
    void Collect();
    void EndWait();
    void JudgeEnd(bool isGood);
    std::chrono::milliseconds PartOfTimeOut(int divisor) const;
    Silence WaitForSilence(std::chrono::milliseconds silence, std::chrono::milliseconds most);

    SerialPort& port_;
    ReceiverKnowledge knowledge_;
    QTimer Timer1_;
    QTimer quiet_;  ///< runs while the line is silent and no command is under way
    QEventLoop loop_;
    QElapsedTimer clock_;
    std::chrono::microseconds lastDuration_{0};
    std::string accumulator_;
    std::string discarded_;
    std::string heard_;
    std::size_t endsFrom_ = 0;  ///< a reply of this length ends the wait when it ends in CR LF
    bool hasFailed_ = false;
    bool isStopped_ = false;
    bool mayStillReply_ = false;
};

}  // namespace rqm5
