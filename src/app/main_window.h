#pragma once

#include <QMainWindow>
#include <QTimer>

#include "app/start_options.h"
#include "app/tab_strip.h"
#include "app/window_parts.h"
#include "document/document.h"
#include "link/radio_link.h"
#include "ui/dialogs.h"

namespace rqm5 {

class Closing;

/// The main window: composes the document and what works on it.
class frmMain : public QMainWindow
{
    Q_OBJECT

  public:
    frmMain(SerialPort& port, Dialogs& dialogs, const StartOptions& options);
    ~frmMain() override;

    /// Reads the COM number, waits for the splash time, then offers what a crash left behind or opens the
    /// file of the command line. Runs once, before the window is shown.
    void Form_Load();

    /// Makes the channel editor, which is used again and again.
    void LoadEditor();

    /// The program is going to be ended from outside: keeps unsaved changes for the next start and cancels
    /// what runs. Once a transfer has ended it is called again, to keep what that one stored.
    void KeepWork();

    /// The same at the end of a desktop session. The window closes without a question then, unless somebody
    /// goes on working because the session did not end.
    void EndSession();

    int CommPort() const;

  signals:
    void Asking();  ///< a question is about to be shown while the window itself may not be shown yet

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void ConnectDocument();
    void ConnectQuestions();
    void SetTransferRunning(bool isRunning);

    void WaitForSplash();
    bool RecoverWork();
    void ShowState();
    void TabStrip1_Click(Tab tab);

    Document document_;
    Dialogs& dialogs_;
    StartOptions options_;
    RadioLink link_;  ///< a child of the window: tests find it to shorten its time-out
    QTimer Timer1_;

    WindowParts parts_;
    Closing* closing_ = nullptr;
};

}  // namespace rqm5
