#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>

#include "app/current_file.h"
#include "app/edit_commands.h"
#include "app/file_commands.h"
#include "app/find_commands.h"
#include "app/history_commands.h"
#include "app/menus.h"
#include "app/offers.h"
#include "app/pages.h"
#include "app/port_commands.h"
#include "app/read_option_items.h"
#include "app/recovery.h"
#include "app/side_windows.h"
#include "app/standing_warnings.h"
#include "app/start_options.h"
#include "app/status_bar.h"
#include "app/tool_bar.h"
#include "app/transfer_bar.h"
#include "app/transfer_commands.h"
#include "app/transfer_shell.h"
#include "app/write_option_items.h"
#include "document/document.h"
#include "link/radio_link.h"
#include "ui/message_bar.h"

namespace rqm5 {

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
    void LoadEditor() { edits_->LoadEditor(); }

    /// The program is going to be ended from outside: keeps unsaved changes for the next start and cancels
    /// what runs. Once a transfer has ended it is called again, to keep what that one stored.
    void KeepWork();

    /// The same at the end of a desktop session. The window closes without a question then, unless somebody
    /// goes on working because the session did not end.
    void EndSession();

    int CommPort() const { return ports_->CommPort(); }

  signals:
    void Asking();  ///< a question is about to be shown while the window itself may not be shown yet

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Compose();
    void ConnectMenu(ItemName name, std::function<void()> command);
    void ConnectFileMenus();
    void ConnectTransferMenus();
    void ConnectOtherMenus();
    void ConnectDocument();

    void WaitForSplash();
    bool RecoverWork();
    void ShowState();
    void TabStrip1_Click(Tab tab);
    bool Form_QueryUnload();
    void Form_Unload();

    Document document_;
    Dialogs& dialogs_;
    StartOptions options_;
    RadioLink link_;  ///< a child of the window: tests find it to shorten its time-out
    QTimer Timer1_;
    bool isClosePending_ = false;
    bool isSessionEnding_ = false;

    Menus* menus_ = nullptr;
    ToolBar* tbToolBar_ = nullptr;
    StatusBar* sbStatusBar_ = nullptr;
    TransferBar* transferBar_ = nullptr;
    MessageBar* messageBar_ = nullptr;
    Pages* pages_ = nullptr;
    CurrentFile* currentFile_ = nullptr;
    StandingWarnings* warnings_ = nullptr;
    FileCommands* files_ = nullptr;
    EditCommands* edits_ = nullptr;
    HistoryCommands* history_ = nullptr;
    FindCommands* finds_ = nullptr;
    PortCommands* ports_ = nullptr;
    ReadOptionItems* readOptions_ = nullptr;
    WriteOptionItems* writeOptions_ = nullptr;
    Offers* offers_ = nullptr;
    TransferCommands* transfers_ = nullptr;
    TransferShell* shell_ = nullptr;
    SideWindows* sides_ = nullptr;
    Recovery* recovery_ = nullptr;
};

}  // namespace rqm5
