#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace rqm5 {

/// While it exists, Ctrl-C and a request to terminate call a function from the event loop, once, in place
/// of ending the program. A second one ends the program as usual. The function gets to know whether it was
/// Ctrl-C.
class Interrupt : public QObject
{
    Q_OBJECT

  public:
    explicit Interrupt(std::function<void(bool isCtrlC)> onInterrupt);
    ~Interrupt() override;
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

  private:
    std::unique_ptr<QSocketNotifier> notifier_;
    int pipe_[2] = {-1, -1};
};

}  // namespace rqm5
