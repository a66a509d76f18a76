#include "simulator/sim_session.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>

namespace rqm5 {
namespace {

namespace fs = std::filesystem;

/// Makes or moves a link in one step, so that there is no moment without it. Replaces links only.
std::string PointLink(const fs::path& link, const fs::path& target)
{
    std::error_code error;
    if (fs::exists(fs::symlink_status(link, error)) && !fs::is_symlink(link, error))
        return link.string() + " exists and is not a link";
    const fs::path fresh = link.string() + ".new";
    fs::remove(fresh, error);
    fs::create_symlink(target, fresh, error);
    if (!error)
        fs::rename(fresh, link, error);
    return error ? link.string() + ": " + error.message() : std::string();
}

void RemoveLink(const fs::path& link, const fs::path& target)
{
    std::error_code error;
    if (fs::read_symlink(link, error) == target)
        fs::remove(link, error);
}

timespec Until(LinePacer::Clock::time_point due)
{
    constexpr std::int64_t kNanoseconds = 1'000'000'000;
    const std::chrono::nanoseconds left = due - LinePacer::Clock::now();
    const std::int64_t count = std::max<std::int64_t>(0, left.count());
    return {count / kNanoseconds, count % kNanoseconds};
}

}  // namespace

SimSession::SimSession(SimOptions options)
    : options_(std::move(options)),
      receiver_(options_.memory, FaultPlan(options_.faults, options_.seed)),
      pacer_(options_.baud)
{
    receiver_.SetLateDelay(options_.lateDelay);
    receiver_.SetStallTime(options_.stallTime);
    wakeUp_ = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (Connect())
        thread_ = std::thread([this] { Run(); });
}

SimSession::~SimSession()
{
    Stop();
    close(wakeUp_);
}

QString SimSession::Device() const
{
    return options_.link.empty() ? Terminal() : QString::fromStdString(options_.link);
}

QString SimSession::Terminal() const
{
    const std::lock_guard lock(mutex_);
    return QString::fromStdString(terminal_.Device());
}

ReceiverMemory SimSession::Memory() const
{
    const std::lock_guard lock(mutex_);
    return receiver_.Memory();
}

void SimSession::SetMemory(const ReceiverMemory& memory)
{
    const std::lock_guard lock(mutex_);
    receiver_.SetMemory(memory);
}

void SimSession::SetFaults(const std::vector<Fault>& faults)
{
    const std::lock_guard lock(mutex_);
    receiver_.SetFaults(FaultPlan(faults, options_.seed));
}

void SimSession::SetStallTime(std::chrono::microseconds time)
{
    const std::lock_guard lock(mutex_);
    receiver_.SetStallTime(time);
}

std::vector<std::string> SimSession::CommandLog() const
{
    const std::lock_guard lock(mutex_);
    return log_;
}

void SimSession::ClearCommandLog()
{
    const std::lock_guard lock(mutex_);
    log_.clear();
}

void SimSession::HangUp()
{
    std::unique_lock lock(mutex_);
    if (!thread_.joinable())
        return;
    mustHangUp_ = true;
    Wake();
    hungUp_.wait(lock, [this] { return !mustHangUp_ || mustStop_; });
}

void SimSession::Stop()
{
    if (!thread_.joinable())
        return;
    mustStop_ = true;
    Wake();
    thread_.join();
    const std::lock_guard lock(mutex_);
    if (!options_.link.empty())
        RemoveLink(options_.link, terminal_.Device());
    terminal_.Close();
}

bool SimSession::Connect()
{
    if (!terminal_.Open())
        error_ = "no pseudo-terminal: " + terminal_.Error();
    else if (!options_.link.empty())
        error_ = PointLink(options_.link, terminal_.Device());
    return error_.empty();
}

void SimSession::Run()
{
    // The pace of the line is kept to the microsecond; the system would group timers otherwise.
    prctl(PR_SET_TIMERSLACK, 1UL);
    while (!mustStop_) {
        Wait();
        const std::lock_guard lock(mutex_);
        Hear();
        Speak();
        if (mustHangUp_)
            Reconnect();
    }
}

/// Sleeps until characters come in, some are due to go out, or another thread wants something.
void SimSession::Wait()
{
    std::array<pollfd, 2> waited{};
    std::optional<LinePacer::Clock::time_point> due;
    {
        const std::lock_guard lock(mutex_);
        waited = {pollfd{terminal_.Descriptor(), POLLIN, 0}, pollfd{wakeUp_, POLLIN, 0}};
        due = pacer_.NextDue();
    }
    const timespec left = due ? Until(*due) : timespec{};
    ppoll(waited.data(), waited.size(), due ? &left : nullptr, nullptr);
    if (waited[1].revents != 0) {
        eventfd_t count = 0;
        eventfd_read(wakeUp_, &count);
    }
}

void SimSession::Hear()
{
    const std::string text = terminal_.Read();
    const auto now = LinePacer::Clock::now();
    if (text.empty() || now < deafUntil_)
        return;
    for (const Answer& answer : receiver_.Receive(text))
        Handle(answer, now);
}

void SimSession::Handle(const Answer& answer, LinePacer::Clock::time_point start)
{
    if (!answer.command.empty()) {
        if (options_.keepsLog)
            log_.push_back(answer.command);
        if (options_.onCommand)
            options_.onCommand(answer.command);
    }
    pacer_.Add(answer, start);
    if (answer.isDeaf)
        deafUntil_ = pacer_.LineFree();
    mustHangUp_ = mustHangUp_ || answer.hangsUp;
}

void SimSession::Speak()
{
    const std::string text = pacer_.TakeDue(LinePacer::Clock::now());
    if (!text.empty())
        terminal_.Write(text);
}

void SimSession::Reconnect()
{
    pacer_.Clear();
    deafUntil_ = {};
    mustStop_ = !Connect() || mustStop_;
    if (options_.onDevice)
        options_.onDevice(terminal_.Device());
    mustHangUp_ = false;
    hungUp_.notify_all();
}

void SimSession::Wake() const
{
    eventfd_write(wakeUp_, 1);
}

}  // namespace rqm5
