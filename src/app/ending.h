#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

namespace rqm5 {

/// Turns the first SIGTERM, SIGHUP or SIGINT into a Qt signal; the next one ends the program as usual. A
/// program started under nohup goes on when its terminal is closed.
class EndSignals : public QObject
{
    Q_OBJECT

  public:
    EndSignals();
    ~EndSignals() override;
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// The exit status of a program that a signal ended; 0 while none has come.
    int Status() const { return status_; }

  signals:
    void Came();

  private:
    void ReadNumber();

    int status_ = 0;
    std::unique_ptr<QSocketNotifier> notifier_;
    int pipe_[2] = {-1, -1};
};

}  // namespace rqm5
