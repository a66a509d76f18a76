#include "app/ending.h"

#include <QApplication>
#include <QSessionManager>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#endif

namespace rqm5 {

#ifdef Q_OS_UNIX
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};
constexpr int kEndedBySignal = 128;

/// A signal handler can reach nothing but globals, and may do little more than write to a file.
volatile std::sig_atomic_t wakeUpPipe = -1;

void WakeUp(int number)
{
    const int oldError = errno;
    const char byte = static_cast<char>(number);
    [[maybe_unused]] const ssize_t written = write(wakeUpPipe, &byte, 1);
    errno = oldError;
}

void Catch(int number)
{
    struct sigaction before = {};
    if (sigaction(number, nullptr, &before) == 0 && before.sa_handler == SIG_IGN)
        return;
    struct sigaction action = {};
    action.sa_handler = WakeUp;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    sigemptyset(&action.sa_mask);
    sigaction(number, &action, nullptr);
}

void Release()
{
    for (const int number : kSignals) {
        struct sigaction now = {};
        if (sigaction(number, nullptr, &now) == 0 && now.sa_handler == WakeUp)
            std::signal(number, SIG_DFL);
    }
}

}  // namespace

EndSignals::EndSignals()
{
    if (pipe(pipe_) != 0)
        return;
    for (const int end : pipe_)
        fcntl(end, F_SETFD, FD_CLOEXEC);
    notifier_ = std::make_unique<QSocketNotifier>(pipe_[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &EndSignals::ReadNumber);
    wakeUpPipe = pipe_[1];
    for (const int number : kSignals)
        Catch(number);
}

EndSignals::~EndSignals()
{
    if (!notifier_)
        return;
    Release();
    wakeUpPipe = -1;
    notifier_.reset();
    for (const int end : pipe_)
        close(end);
}

void EndSignals::ReadNumber()
{
    char byte = 0;
    if (read(pipe_[0], &byte, 1) != 1)
        return;
    notifier_->setEnabled(false);
    Release();
    status_ = kEndedBySignal + byte;
    emit Came();
}
#else
// Elsewhere the system ends the program; what is kept for recovery is what was kept last.
EndSignals::EndSignals() = default;
EndSignals::~EndSignals() = default;
void EndSignals::ReadNumber() {}
#endif

ProgramEnd::ProgramEnd()
{
    connect(&signals_, &EndSignals::Came, this, [this] {
        if (window_ != nullptr)
            window_->KeepWork();
        QApplication::exit(signals_.Status());
    });
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) {
        if (window_ != nullptr)
            window_->EndSession();
    });
}

int ProgramEnd::Exec(frmMain& window)
{
    window_ = &window;
    const int status = signals_.Status() != 0 ? signals_.Status() : QApplication::exec();
    // A transfer may have stored something after the first call.
    if (signals_.Status() != 0)
        window.KeepWork();
    window_ = nullptr;
    return status;
}

}  // namespace rqm5
