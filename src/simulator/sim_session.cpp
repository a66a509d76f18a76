#include "simulator/sim_session.h"

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

}  // namespace

SimSession::SimSession(SimOptions options)
    : options_(std::move(options)),
      receiver_(options_.memory, FaultPlan(options_.faults, options_.seed)),
      pacer_(options_.baud)
{
    receiver_.SetLateDelay(options_.lateDelay);
    receiver_.SetStallTime(options_.stallTime);
    if (Connect())
        thread_ = std::thread([this] { Run(); });
}

SimSession::~SimSession()
{
    Stop();
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
    waiter_.Wake();
    hungUp_.wait(lock, [this] { return !mustHangUp_ || mustStop_; });
}

void SimSession::Stop()
{
    if (!thread_.joinable())
        return;
    mustStop_ = true;
    waiter_.Wake();
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
    LineWaiter::KeepExactTime();
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
    int descriptor = -1;
    std::optional<LinePacer::Clock::time_point> due;
    {
        const std::lock_guard lock(mutex_);
        descriptor = terminal_.Descriptor();
        due = pacer_.NextDue();
    }
    waiter_.Wait(descriptor, due);
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

}  // namespace rqm5
