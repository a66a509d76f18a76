#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

#include "app/main_window.h"

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

/// How the program ends when nobody closes its window: by a signal, or with the session of the desktop. The
/// window keeps unsaved changes then, and what runs is cancelled.
class ProgramEnd : public QObject
{
    Q_OBJECT

  public:
    ProgramEnd();

    /// Runs the event loop, unless a signal came before it. \return the exit status
    int Exec(frmMain& window);

  private:
    frmMain* window_ = nullptr;
    EndSignals signals_;
};

}  // namespace rqm5
