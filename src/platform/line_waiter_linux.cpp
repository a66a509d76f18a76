#include <poll.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "platform/line_waiter.h"

namespace rqm5 {
namespace {

timespec Until(LineWaiter::Clock::time_point due)
{
    constexpr std::int64_t kNanoseconds = 1'000'000'000;
    const std::chrono::nanoseconds left = due - LineWaiter::Clock::now();
    const std::int64_t count = std::max<std::int64_t>(0, left.count());
    return {count / kNanoseconds, count % kNanoseconds};
}

}  // namespace

LineWaiter::LineWaiter() : wakeUp_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

LineWaiter::~LineWaiter()
{
    close(wakeUp_);
}

void LineWaiter::KeepExactTime()
{
    prctl(PR_SET_TIMERSLACK, 1UL);
}

void LineWaiter::Wait(int descriptor, std::optional<Clock::time_point> due) const
{
    std::array<pollfd, 2> waited{pollfd{descriptor, POLLIN, 0}, pollfd{wakeUp_, POLLIN, 0}};
    const timespec left = due ? Until(*due) : timespec{};
    ppoll(waited.data(), waited.size(), due ? &left : nullptr, nullptr);
    if (waited[1].revents != 0) {
        eventfd_t count = 0;
        eventfd_read(wakeUp_, &count);
    }
}

void LineWaiter::Wake() const
{
    eventfd_write(wakeUp_, 1);
}

}  // namespace rqm5
