#pragma once

#include <QMainWindow>
#include <QObject>

namespace rqm5 {

class FileCommands;
class Pages;
class PortCommands;
class Recovery;
class TransferCommands;

/// The end of the main window: what is asked, kept and closed before it goes.
class Closing : public QObject
{
    Q_OBJECT

  public:
    Closing(Pages& pages, FileCommands& files, PortCommands& ports, Recovery& recovery,
            TransferCommands& transfers, QMainWindow& window);

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

    Pages& pages_;
    FileCommands& files_;
    PortCommands& ports_;
    Recovery& recovery_;
    TransferCommands& transfers_;
    QMainWindow& window_;
    bool isClosePending_ = false;
    bool isSessionEnding_ = false;
};

}  // namespace rqm5
