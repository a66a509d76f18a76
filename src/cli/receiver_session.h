#pragma once

#include <QCoreApplication>
#include <functional>
#include <memory>
#include <optional>

#include "cli/arguments.h"
#include "cli/console.h"
#include "cli/progress_bar.h"
#include "link/qt_serial_port.h"
#include "link/radio_link.h"
#include "platform/end_signals.h"

namespace rqm5 {

/// An event loop for a program that has none yet: the serial port needs one, the other commands start
/// faster without.
class EventLoopHost
{
  public:
    EventLoopHost();
    EventLoopHost(const EventLoopHost&) = delete;
    EventLoopHost& operator=(const EventLoopHost&) = delete;

  private:
    // The application keeps referring to them.
    int argumentCount_ = 1;
    char programName_[6] = "rq-m5";
    char* argumentList_[2] = {programName_, nullptr};
    std::optional<QCoreApplication> application_;
};

/// A receiver at a port for the length of one command. Ctrl-C cancels what runs.
class ReceiverSession
{
  public:
    /// The port that --port or RQ-M5.ini says. It is opened by the first transfer.
    ReceiverSession(const Arguments& arguments, Console& console);

    /// Says how many blocks needed more than one attempt.
    ~ReceiverSession();
    ReceiverSession(const ReceiverSession&) = delete;
    ReceiverSession& operator=(const ReceiverSession&) = delete;

    RadioLink& Link() { return link_; }
    ProgressBar& Observer() { return progress_; }

    /// Says which port was chosen when the command line names none, now and in every message of a transfer.
    void TellPort();

    /// What the command ends with after a transfer. Says so when it was cancelled; failures were
    /// reported when they happened.
    Status Finish(TransferResult result);

    /// How long the command has taken until now.
    std::chrono::seconds Taken() const;

    /// One line at the end of a command that went well, for whoever sits at a terminal.
    void Close(const Message& note);

  private:
    void TellExchange(const std::string& command);

    EventLoopHost host_;
    Console& console_;
    const int number_;  ///< the COM number from RQ-M5.ini; 0 when --port says the port
    const std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
    bool isCtrlC_ = false;
    ProgressBar progress_;
    QtSerialPort port_;
    RadioLink link_;
    EndSignals signals_;
};

}  // namespace rqm5
