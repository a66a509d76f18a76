#include "platform/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <utility>

namespace rqm5 {
namespace {

constexpr int kEndedBySignal = 128;

struct CaughtSignal
{
    int number = 0;
    struct sigaction before = {};
    bool isCaught = false;
};

CaughtSignal caughtSignals[] = {{SIGINT}, {SIGTERM}, {SIGHUP}};

/// A signal handler can reach nothing but globals, and may do little more than write to a file.
volatile std::sig_atomic_t wakeUpPipe = -1;

void WakeUp(int number)
{
    const int oldError = errno;
    const char byte = static_cast<char>(number);
    [[maybe_unused]] const ssize_t written = write(wakeUpPipe, &byte, 1);
    errno = oldError;
}

void Catch(EndSignals::Ignored ignored)
{
    struct sigaction action = {};
    action.sa_handler = WakeUp;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    sigemptyset(&action.sa_mask);
    for (CaughtSignal& caught : caughtSignals) {
        sigaction(caught.number, nullptr, &caught.before);
        const bool mayStayIgnored = ignored == EndSignals::Ignored::AllStayIgnored || caught.number == SIGHUP;
        caught.isCaught = !mayStayIgnored || caught.before.sa_handler != SIG_IGN;
        if (caught.isCaught)
            sigaction(caught.number, &action, nullptr);
    }
}

/// From now on they end the program.
void LetEnd()
{
    for (const CaughtSignal& caught : caughtSignals)
        if (caught.isCaught)
            std::signal(caught.number, SIG_DFL);
}

void Restore()
{
    for (CaughtSignal& caught : caughtSignals)
        if (std::exchange(caught.isCaught, false))
            sigaction(caught.number, &caught.before, nullptr);
}

class Watch : public QObject
{
  public:
    Watch(EndSignals::Ignored ignored, std::function<void(int)> onEnd) : onEnd_(std::move(onEnd))
    {
        if (pipe(pipe_) != 0)
            return;
        for (const int end : pipe_)
            fcntl(end, F_SETFD, FD_CLOEXEC);
        notifier_ = std::make_unique<QSocketNotifier>(pipe_[0], QSocketNotifier::Read);
        connect(notifier_.get(), &QSocketNotifier::activated, this, &Watch::Tell);
        wakeUpPipe = pipe_[1];
        Catch(ignored);
    }

    ~Watch() override
    {
        if (!notifier_)
            return;
        Restore();
        wakeUpPipe = -1;
        notifier_.reset();
        for (const int end : pipe_)
            close(end);
    }

    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

  private:
    void Tell()
    {
        char number = 0;
        if (read(pipe_[0], &number, 1) != 1)
            return;
        notifier_->setEnabled(false);
        LetEnd();
        onEnd_(kEndedBySignal + number);
    }

    std::function<void(int)> onEnd_;
    std::unique_ptr<QSocketNotifier> notifier_;
    int pipe_[2] = {-1, -1};
};

}  // namespace

EndSignals::EndSignals(Ignored ignored, std::function<void(int)> onEnd)
    : watch_(std::make_unique<Watch>(ignored, std::move(onEnd)))
{
}

}  // namespace rqm5
