#pragma once

#include <QMainWindow>
#include <QObject>

#include "app/window_parts.h"

namespace rqm5 {

/// The end of the main window: what is asked, kept and closed before it goes.
class Closing : public QObject
{
    Q_OBJECT

  public:
    Closing(const WindowParts& parts, QMainWindow& window);

    /// Asks about unsaved changes and puts everything in order. \return false when the window has to stay: a
    /// transfer runs, which is cancelled and followed by another try, or somebody chose to stay
    bool MayClose();

    /// The program is going to be ended from outside: keeps unsaved changes for the next start and cancels
    /// what runs.
    void KeepWork();

    /// The same at the end of a desktop session. The window closes without a question then, unless somebody
    /// goes on working because the session did not end.
    void EndSession();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool Form_QueryUnload();
    void Form_Unload();

    WindowParts parts_;
    QMainWindow& window_;
    bool isClosePending_ = false;
    bool isSessionEnding_ = false;
};

}  // namespace rqm5
