#pragma once

#include <QObject>

#include "app/main_window.h"
#include "platform/end_signals.h"

namespace rqm5 {

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
    int status_ = 0;  ///< of a program that was ended; 0 while nothing came
    EndSignals signals_;
};

}  // namespace rqm5
