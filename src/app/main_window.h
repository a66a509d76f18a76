#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <functional>

#include "app/file_commands.h"
#include "app/menus.h"
#include "app/recovery.h"
#include "app/side_windows.h"
#include "app/start_options.h"
#include "app/status_bar.h"
#include "app/tab_strip.h"
#include "app/tool_bar.h"
#include "app/transfer_bar.h"
#include "app/transfer_commands.h"
#include "image/clone_image.h"
#include "link/radio_link.h"
#include "memory/bank_page.h"
#include "memory/memory_page.h"
#include "memory/modify_dialog.h"
#include "settings/settings1_page.h"
#include "settings/settings2_page.h"

namespace rqm5 {

/// The main window: owns the clone image and composes what works on it.
class frmMain : public QMainWindow
{
    Q_OBJECT

  public:
    frmMain(SerialPort& port, Dialogs& dialogs, const StartOptions& options);

    /// Reads the COM number, builds the image the program starts with and shows it, waits for the splash
    /// time, then opens the file of the command line. Runs once, before the window is shown.
    void Form_Load();

    /// Makes the channel editor, which is used again and again.
    void LoadEditor();

    int CommPort() const { return CommPort_; }

  signals:
    void Asking();  ///< a question is shown while the window itself is not shown yet

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Compose();
    void ConnectPages();
    void ConnectMenus();
    void ConnectMenu(const char* name, std::function<void()> command);
    void ConnectTransfers();

    void SetCommPort(int number);
    void WaitForSplash();
    bool RecoverWork();
    void MarkChanged();

    void ShowStatus();
    void ShowNew();
    void ShowLoaded();
    void ShowRegion();
    void ShowTransferred(Changed what);

    void StartTransfer(Transfer transfer);
    void StartTransferOn(Tab tab, Transfer transfer);
    void SetTransferRunning(bool isRunning);
    void Transfer_Ended(TransferResult result);

    void TabStrip1_Click(Tab tab);
    void mnuEditUndo_Click();
    void ModifyMemory(int row);
    void ModifyVfo(int row);
    void mnuViewToolbar_Click();
    void mnuStatusBar_Click();
    void mnuToolsOptions_Click();
    void ShowWriteOptions();
    void KeepWriteOptions();
    void mnuWrBackupFolder_Click();
    bool Form_QueryUnload();
    void Form_Unload();

    CloneImage image_;
    Dialogs& dialogs_;
    StartOptions options_;
    RadioLink link_;  ///< a child of the window: tests find it to shorten its time-out
    int CommPort_ = 1;
    QTimer Timer1_;
    bool isClosePending_ = false;
    QPointer<QWidget> focusBefore_;

    Menus* menus_ = nullptr;
    ToolBar* tbToolBar_ = nullptr;
    TabStrip* TabStrip1_ = nullptr;
    StatusBar* sbStatusBar_ = nullptr;
    TransferBar* transferBar_ = nullptr;
    FileCommands* files_ = nullptr;
    TransferCommands* transfers_ = nullptr;
    Recovery* recovery_ = nullptr;

    Settings1Page* settings1_ = nullptr;
    Settings2Page* settings2_ = nullptr;
    MemoryPage* memory_ = nullptr;
    BankPage* banks_ = nullptr;
    dlgModify* editor_ = nullptr;
};

}  // namespace rqm5
