#include "cli/interrupt.h"

#include <QtGlobal>
#include <utility>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#endif

namespace rqm5 {

#ifdef Q_OS_UNIX
namespace {

struct CaughtSignal
{
    int number = 0;
    struct sigaction before = {};
};

CaughtSignal caughtSignals[] = {{SIGINT}, {SIGTERM}, {SIGHUP}};

/// A signal handler can reach nothing but globals, and may do little more than write to a file.
volatile std::sig_atomic_t wakeUpPipe = -1;

constexpr char kCtrlC = 1;

void WakeUp(int signal)
{
    const int oldError = errno;
    const char byte = signal == SIGINT ? kCtrlC : 0;
    [[maybe_unused]] const ssize_t written = write(wakeUpPipe, &byte, 1);
    errno = oldError;
}

void Catch()
{
    struct sigaction action = {};
    action.sa_handler = WakeUp;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    sigemptyset(&action.sa_mask);
    for (CaughtSignal& caught : caughtSignals) {
        sigaction(caught.number, &action, &caught.before);
        // Started under nohup, a transfer goes on when its terminal is closed.
        if (caught.number == SIGHUP && caught.before.sa_handler == SIG_IGN)
            sigaction(caught.number, &caught.before, nullptr);
    }
}

void Release()
{
    for (const CaughtSignal& caught : caughtSignals)
        sigaction(caught.number, &caught.before, nullptr);
}

}  // namespace

Interrupt::Interrupt(std::function<void(bool isCtrlC)> onInterrupt)
{
    if (pipe(pipe_) != 0)
        return;
    for (const int end : pipe_)
        fcntl(end, F_SETFD, FD_CLOEXEC);
    notifier_ = std::make_unique<QSocketNotifier>(pipe_[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this,
            [this, call = std::move(onInterrupt)](QSocketDescriptor, QSocketNotifier::Type) {
                notifier_->setEnabled(false);
                char byte = 0;
                call(read(pipe_[0], &byte, 1) == 1 && byte == kCtrlC);
            });
    wakeUpPipe = pipe_[1];
    Catch();
}

Interrupt::~Interrupt()
{
    if (!notifier_)
        return;
    Release();
    wakeUpPipe = -1;
    notifier_.reset();
    for (const int end : pipe_)
        close(end);
}
#else
// Elsewhere the system ends the program, and the file is untouched all the same: it is written last.
Interrupt::Interrupt(std::function<void(bool isCtrlC)> /*onInterrupt*/) {}
Interrupt::~Interrupt() = default;
#endif

}  // namespace rqm5
