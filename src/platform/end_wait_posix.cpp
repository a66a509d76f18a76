#include <csignal>
#include <initializer_list>

#include "platform/end_wait.h"

namespace rqm5 {
namespace {

sigset_t EndingSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&signals, number);
    return signals;
}

}  // namespace

EndWait::EndWait()
{
    const sigset_t signals = EndingSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void EndWait::Wait() const
{
    const sigset_t signals = EndingSignals();
    int received = 0;
    sigwait(&signals, &received);
}

}  // namespace rqm5
