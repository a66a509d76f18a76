#pragma once

#include <chrono>
#include <optional>

namespace rqm5 {

/// Lets one thread sleep until characters come in, a moment has come, or another thread wants something.
class LineWaiter
{
  public:
    using Clock = std::chrono::steady_clock;

    LineWaiter();
    ~LineWaiter();
    LineWaiter(const LineWaiter&) = delete;
    LineWaiter& operator=(const LineWaiter&) = delete;

    /// Makes this thread wake up to the microsecond; the system would group timers otherwise.
    static void KeepExactTime();

    /// \param descriptor  of the line  \param due  no moment: waits for the others as long as it takes
    void Wait(int descriptor, std::optional<Clock::time_point> due) const;

    /// From another thread.
    void Wake() const;

  private:
    int wakeUp_ = -1;
};

}  // namespace rqm5
