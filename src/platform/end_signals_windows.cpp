#include "platform/end_signals.h"

#include <windows.h>

#include <QMetaObject>
#include <mutex>
#include <utility>

namespace rqm5 {
namespace {

constexpr int kTerminated = 143;

// The system calls the handler in a thread of its own.
std::mutex watchMutex;
QObject* watch = nullptr;
std::function<void(int)> tell;

BOOL WINAPI Handle(DWORD event)
{
    const std::lock_guard lock(watchMutex);
    if (watch == nullptr || !tell)
        return FALSE;
    const int status = event == CTRL_C_EVENT ? kEndedByCtrlC : kTerminated;
    QMetaObject::invokeMethod(
        watch, [call = std::exchange(tell, nullptr), status] { call(status); }, Qt::QueuedConnection);
    return TRUE;
}

class Watch : public QObject
{
  public:
    explicit Watch(std::function<void(int)> onEnd)
    {
        const std::lock_guard lock(watchMutex);
        watch = this;
        tell = std::move(onEnd);
        SetConsoleCtrlHandler(Handle, TRUE);
    }
    ~Watch() override
    {
        SetConsoleCtrlHandler(Handle, FALSE);
        const std::lock_guard lock(watchMutex);
        watch = nullptr;
        tell = nullptr;
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
};

}  // namespace

EndSignals::EndSignals(Ignored /*ignored*/, std::function<void(int)> onEnd)
    : watch_(std::make_unique<Watch>(std::move(onEnd)))
{
}

}  // namespace rqm5
