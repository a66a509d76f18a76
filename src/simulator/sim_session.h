#pragma once

#include <QString>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/line_waiter.h"
#include "platform/pseudo_terminal.h"
#include "simulator/line_pacer.h"
#include "simulator/simulated_receiver.h"

namespace rqm5 {

struct SimOptions
{
    ReceiverMemory memory{};
    int baud = 0;  ///< 0: the line takes no time
    std::vector<Fault> faults{};
    unsigned seed = 1;
    std::string link{};  ///< a fixed name for the device, made as a symbolic link and removed at the end
    std::chrono::milliseconds lateDelay{600};
    std::chrono::microseconds stallTime{std::chrono::milliseconds(700)};
    bool keepsLog = true;  ///< false for a session without end, whose log would never stop growing

    /// Called on the receiver's own thread: each command received (without its CR), and the new device
    /// after a hang-up. They must not call the session.
    std::function<void(const std::string&)> onCommand{};
    std::function<void(const std::string&)> onDevice{};
};

/// A simulated receiver at work on a pseudo-terminal of its own, in a thread of its own.
///
///     SimSession receiver({.memory = MemoryFromImage(DemoImage(0))});
///     QtSerialPort port(receiver.Device());
///
/// After a hang-up it comes back at once, on a new pseudo-terminal; only a link keeps the same name. All
/// functions may be called at any time.
class SimSession
{
  public:
    explicit SimSession(SimOptions options = {});
    ~SimSession();
    SimSession(const SimSession&) = delete;
    SimSession& operator=(const SimSession&) = delete;

    /// Why there is no receiver; empty when there is one.
    const std::string& Error() const { return error_; }

    /// The name to open: the link when there is one, else the terminal.
    QString Device() const;

    /// The pseudo-terminal itself.
    QString Terminal() const;

    /// A copy of what the receiver holds now.
    ReceiverMemory Memory() const;
    void SetMemory(const ReceiverMemory& memory);

    /// Replaces the faults; commands are counted anew.
    void SetFaults(const std::vector<Fault>& faults);

    /// How long the receiver stops at a stall.
    void SetStallTime(std::chrono::microseconds time);

    /// Every command received since the start or the last clearing, in order, without its CR. Empty when the
    /// options keep no log.
    std::vector<std::string> CommandLog() const;
    void ClearCommandLog();

    /// Pulls the cable.
    void HangUp();

    /// Ends the receiver; the device is gone then. Memory and log can still be asked for.
    void Stop();

  private:
    bool Connect();
    void Run();
    void Wait();
    void Hear();
    void Handle(const Answer& answer, LinePacer::Clock::time_point start);
    void Speak();
    void Reconnect();

    const SimOptions options_;
    std::string error_;
    mutable std::mutex mutex_;  ///< guards what the thread works with
    SimulatedReceiver receiver_;
    LinePacer pacer_;
    PseudoTerminal terminal_;
    std::vector<std::string> log_;
    LinePacer::Clock::time_point deafUntil_{};
    bool mustHangUp_ = false;
    std::condition_variable hungUp_;
    std::atomic<bool> mustStop_ = false;
    LineWaiter waiter_;
    std::thread thread_;
};

}  // namespace rqm5
