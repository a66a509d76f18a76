#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusTipEvent>
#include <QVBoxLayout>

#include "app/form_texts.h"
#include "app/icons.h"
#include "app/placement.h"
#include "app/port_dialog.h"
#include "app/write_options.h"
#include "link/com_ports.h"
#include "link/port_file.h"
#include "memory/bank_layout.h"
#include "memory/start_image.h"
#include "ui/plain_text.h"

namespace rqm5 {

namespace {

/// Shows the widest page whole; a smaller screen gets scroll bars.
constexpr QSize kUsualSize(1000, 680);
constexpr QSize kWindowFrame(8, 36);

}  // namespace

frmMain::frmMain(SerialPort& port, Dialogs& dialogs, const StartOptions& options)
    : image_(StartUpImage(0)), dialogs_(dialogs), options_(options), link_(port, this)
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowIcon(ProgramIcon());
    setContextMenuPolicy(Qt::NoContextMenu);  // it would hide the toolbar behind the View menu's back
    Timer1_.setSingleShot(true);
    Compose();
    ConnectPages();
    ConnectMenus();
    ConnectTransfers();
    resize(kUsualSize.boundedTo(screen()->availableSize() - kWindowFrame));
}

void frmMain::Compose()
{
    menus_ = new Menus(*menuBar());
    tbToolBar_ = new ToolBar(*menus_, this);
    addToolBar(tbToolBar_);
    sbStatusBar_ = new StatusBar(this);
    setStatusBar(sbStatusBar_);

    auto* middle = new QWidget(this);
    auto* column = new QVBoxLayout(middle);
    TabStrip1_ = new TabStrip(middle);
    transferBar_ = new TransferBar(middle);
    column->addWidget(TabStrip1_, 1);
    column->addWidget(transferBar_);
    setCentralWidget(middle);

    settings1_ = new Settings1Page(image_, dialogs_, TabStrip1_);
    settings2_ = new Settings2Page(image_, dialogs_, TabStrip1_);
    memory_ = new MemoryPage(image_, dialogs_, TabStrip1_);
    banks_ = new BankPage(image_, dialogs_, TabStrip1_);
    TabStrip1_->SetPage(Tab::Settings1, *settings1_);
    TabStrip1_->SetPage(Tab::Settings2, *settings2_);
    TabStrip1_->SetPage(Tab::Memory, *memory_);
    TabStrip1_->SetPage(Tab::Bank, *banks_);

    files_ = new FileCommands(image_, dialogs_, *this);
    transfers_ = new TransferCommands(image_, link_, dialogs_, *this);
    recovery_ = new Recovery(image_, options_.stateFolder, options_.recoveryDelay, this);
    ShowWriteOptions();
}

void frmMain::ConnectPages()
{
    connect(settings1_, &Settings1Page::Edited, this, &frmMain::MarkChanged);
    connect(settings2_, &Settings2Page::Edited, this, &frmMain::MarkChanged);
    connect(memory_, &MemoryPage::Edited, this, &frmMain::MarkChanged);
    connect(banks_, &BankPage::Edited, this, &frmMain::MarkChanged);
    connect(settings1_, &Settings1Page::RegionChanged, this, &frmMain::ShowRegion);
    connect(settings1_, &Settings1Page::ModifyRequested, this, &frmMain::ModifyVfo);
    connect(memory_, &MemoryPage::ModifyRequested, this, &frmMain::ModifyMemory);
    connect(banks_, &BankPage::BanksChanged, this, [this] {
        memory_->BuildChannelLabels();
        memory_->UpDateMemData();
    });

    const auto starts = [this](Transfer transfer) { return [this, transfer] { StartTransfer(transfer); }; };
    connect(settings1_, &Settings1Page::ReadRequested, this, starts(Transfer::ReadSettings));
    connect(settings2_, &Settings2Page::ReadRequested, this, starts(Transfer::ReadSettings));
    connect(settings1_, &Settings1Page::WriteRequested, this, starts(Transfer::WriteSettings));
    connect(settings2_, &Settings2Page::WriteRequested, this, starts(Transfer::WriteSettings));
    connect(memory_, &MemoryPage::ReadRequested, this, starts(Transfer::ReadMemory));
    connect(memory_, &MemoryPage::WriteRequested, this, starts(Transfer::WriteMemory));
    connect(banks_, &BankPage::ReadRequested, this, starts(Transfer::ReadBankPage));
    connect(banks_, &BankPage::WriteRequested, this, starts(Transfer::WriteBankPage));
}

void frmMain::ConnectMenu(const char* name, std::function<void()> command)
{
    // What was typed into a bank box counts as left once a menu is chosen.
    connect(&menus_->Item(name), &QAction::triggered, this, [this, command = std::move(command)] {
        banks_->CommitPending();
        command();
    });
}

void frmMain::ConnectMenus()
{
    ConnectMenu("mnuFileNew", [this] { files_->mnuFileNew_Click(); });
    ConnectMenu("mnuFileOpen", [this] { files_->mnuFileOpen_Click(); });
    ConnectMenu("mnuFileSave", [this] { files_->mnuFileSave_Click(); });
    ConnectMenu("mnuFileSaveAs", [this] { files_->mnuFileSaveAs_Click(); });
    ConnectMenu("mnuFileImport", [this] { files_->mnuFileImport_Click(); });
    ConnectMenu("mnuFileExport", [this] { files_->mnuFileExport_Click(); });
    ConnectMenu("mnuFileExit", [this] { close(); });
    ConnectMenu("mnuEditUndo", [this] { mnuEditUndo_Click(); });
    ConnectMenu("mnuViewToolbar", [this] { mnuViewToolbar_Click(); });
    ConnectMenu("mnuStatusBar", [this] { mnuStatusBar_Click(); });
    ConnectMenu("mnuReAll", [this] { StartTransfer(Transfer::ReadAll); });
    ConnectMenu("mnuReMemory", [this] { StartTransferOn(Tab::Memory, Transfer::ReadMemory); });
    ConnectMenu("mnuReSettings", [this] { StartTransferOn(Tab::Settings1, Transfer::ReadSettings); });
    ConnectMenu("mnuWrAll", [this] { StartTransfer(Transfer::WriteAll); });
    ConnectMenu("mnuWrMemory", [this] { StartTransferOn(Tab::Memory, Transfer::WriteMemory); });
    ConnectMenu("mnuWrSettings", [this] { StartTransferOn(Tab::Settings1, Transfer::WriteSettings); });
    ConnectMenu("mnuWrBackup", [this] { KeepWriteOptions(); });
    ConnectMenu("mnuWrVerify", [this] { KeepWriteOptions(); });
    ConnectMenu("mnuWrBackupFolder", [this] { mnuWrBackupFolder_Click(); });
    ConnectMenu("mnuToolsOptions", [this] { mnuToolsOptions_Click(); });

    const SideContext context{*this, image_,      dialogs_,          *files_,
                              link_, *transfers_, options_.portFile, CommPort_};
    AddSideWindows(context);
    ConnectMenu("mnuFilePrint", [context] { mnuFilePrint_Click(context); });
    ConnectMenu("mnuHelpContents", [context] { mnuHelpContents_Click(context); });
    ConnectMenu("mnuHelpAbout", [context] { mnuHelpAbout_Click(context); });
    ConnectMenu("mnuViewDiagnostics", [context] { mnuViewDiagnostics_Click(context); });

    connect(TabStrip1_, &TabStrip::AboutToSwitch, banks_, &BankPage::CommitPending);
    connect(TabStrip1_, &TabStrip::Switched, this, &frmMain::TabStrip1_Click);
    connect(files_, &FileCommands::NewDone, this, &frmMain::ShowNew);
    connect(files_, &FileCommands::Loaded, this, &frmMain::ShowLoaded);
    connect(files_, &FileCommands::Imported, this, &frmMain::ShowRegion);
    connect(files_, &FileCommands::NothingImported, this, [this] {
        sbStatusBar_->ShowNote(tr("Nothing was imported: the file holds no record of this receiver."));
    });
    connect(files_, &FileCommands::FileStateChanged, this, [this] {
        setWindowTitle(files_->Caption());
        // They spoke of what was there before.
        sbStatusBar_->ShowNote({});
        sbStatusBar_->ShowWarning({});
        ShowStatus();
    });
}

void frmMain::ConnectTransfers()
{
    connect(transfers_, &TransferCommands::Started, this, [this] {
        sbStatusBar_->ShowNote({});
        SetTransferRunning(true);
    });
    connect(transfers_, &TransferCommands::Ended, this, &frmMain::Transfer_Ended);
    connect(transfers_, &TransferCommands::Refreshed, this, &frmMain::ShowTransferred);
    connect(transfers_, &TransferCommands::ProgressBegan, transferBar_, &TransferBar::StartProgress);
    connect(transfers_, &TransferCommands::ProgressAdvanced, transferBar_, &TransferBar::MoveProgress);
    connect(transfers_, &TransferCommands::Noted, sbStatusBar_, &StatusBar::ShowNote);
    connect(recovery_, &Recovery::Kept, sbStatusBar_, [this](const QString& reason) {
        sbStatusBar_->ShowWarning(
            reason.isEmpty() ? QString() : tr("Unsaved changes cannot be kept for recovery: %1").arg(reason));
    });
    connect(transferBar_, &TransferBar::CancelRequested, transfers_, &TransferCommands::Cancel);
}

void frmMain::Form_Load()
{
    setWindowTitle(files_->Caption());
    SetFormTexts(*this);
    SetCommPort(ReadPortFile(options_.portFile));
    ShowLoaded();
    WaitForSplash();
    setWindowTitle(files_->Caption());
    TabStrip1_->Select(Tab::Settings1);
    const bool isRecovered = RecoverWork();
    if (!isRecovered && !options_.commandFile.isEmpty())
        files_->Load(options_.commandFile);
    image_.DataChanged = isRecovered;
    ShowStatus();
    const QString& wanted = options_.commandFile;
    if (isRecovered && !wanted.isEmpty() && QFileInfo(wanted).absoluteFilePath() != files_->FileName())
        sbStatusBar_->ShowNote(tr("Recovered changes came first; not opened: %1").arg(VisibleText(wanted)));
}

bool frmMain::RecoverWork()
{
    return recovery_->Offer(dialogs_, this, [this](const QString& path, const QString& origin) {
        return files_->Recover(path, origin);
    });
}

void frmMain::WaitForSplash()
{
    QEventLoop wait;
    connect(&Timer1_, &QTimer::timeout, &wait, &QEventLoop::quit);
    Timer1_.start(options_.splashTime);
    wait.exec();
}

void frmMain::LoadEditor()
{
    editor_ = new dlgModify(image_, dialogs_, this);
}

void frmMain::SetCommPort(int number)
{
    CommPort_ = number;
    const QString device = DeviceOfComPort(number);
    if (options_.useDevice)
        options_.useDevice(device);
    sbStatusBar_->ShowPort(number, device);
}

void frmMain::MarkChanged()
{
    image_.DataChanged = true;
    sbStatusBar_->ShowNote({});
    ShowStatus();
}

void frmMain::ShowStatus()
{
    sbStatusBar_->ShowImage(image_, !files_->FileName().isEmpty());
    recovery_->Look(files_->FileName());
}

void frmMain::ShowRegion()
{
    settings1_->UpdateVFOData();
    memory_->UpDateMemData();
    ShowStatus();
}

void frmMain::ShowLoaded()
{
    settings1_->ShowSettings();
    settings2_->ShowSettings();
    settings1_->UpdateVFOData();
    banks_->ShowBanks();
    banks_->ShowLinks();
    banks_->ShowChannelCount(TotalBankSize(image_));
    memory_->BuildChannelLabels();
    memory_->GoToFirstRow();
    memory_->UpDateMemData();
    ShowStatus();
}

void frmMain::ShowNew()
{
    memory_->SelectGroup(kSelectAll);
    ShowLoaded();
}

void frmMain::ShowTransferred(Changed what)
{
    switch (what) {
        case Changed::SelectorToAll:
            memory_->SelectGroup(kSelectAll);
            break;
        case Changed::Settings:
            settings1_->ShowSettings();
            settings2_->ShowSettings();
            ShowRegion();
            break;
        case Changed::Vfo:
            settings1_->UpdateVFOData();
            break;
        case Changed::BankLayout:
            banks_->ShowBanks();
            banks_->ShowChannelCount(TotalBankSize(image_));
            memory_->BuildChannelLabels();
            break;
        case Changed::BankLinks:
            banks_->ShowLinks();
            break;
        case Changed::Memory:
            memory_->UpDateMemData();
            break;
    }
    ShowStatus();
}

void frmMain::StartTransferOn(Tab tab, Transfer transfer)
{
    TabStrip1_->Select(tab);
    StartTransfer(transfer);
}

void frmMain::StartTransfer(Transfer transfer)
{
    banks_->CommitPending();
    transfers_->Run(transfer, memory_->Selector());
}

void frmMain::SetTransferRunning(bool isRunning)
{
    // Disabled controls lose the focus; the one that had it gets it back.
    if (isRunning)
        focusBefore_ = focusWidget();
    menus_->SetTransferRunning(isRunning);
    settings1_->SetTransferRunning(isRunning);
    settings2_->SetTransferRunning(isRunning);
    memory_->SetTransferRunning(isRunning);
    banks_->SetTransferRunning(isRunning);
    if (isRunning)
        transferBar_->Begin();
    else
        transferBar_->End();
    if (!isRunning && focusBefore_ != nullptr)
        focusBefore_->setFocus();
    // The Cancel button under the pointer is gone, or has come.
    sbStatusBar_->ShowPointerHint({});
    sbStatusBar_->ShowHintOf(focusWidget());
}

void frmMain::Transfer_Ended(TransferResult result)
{
    SetTransferRunning(false);
    if (result == TransferResult::Cancelled)
        for (const Changed what :
             {Changed::Settings, Changed::Vfo, Changed::BankLayout, Changed::BankLinks, Changed::Memory})
            ShowTransferred(what);
    ShowStatus();
    if (std::exchange(isClosePending_, false))
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void frmMain::TabStrip1_Click(Tab tab)
{
    menus_->SetModifyPossible(tab == Tab::Settings1 || tab == Tab::Memory);
    if (tab == Tab::Memory)
        memory_->FocusSelector();
    sbStatusBar_->ShowHintOf(focusWidget());
}

void frmMain::mnuEditUndo_Click()
{
    if (TabStrip1_->Current() == Tab::Settings1)
        ModifyVfo(settings1_->SelectedVfoRow() - 1);
    else if (memory_->CurrentTableRow() > 0)
        ModifyMemory(RowOfSelection(image_, memory_->Selector(), memory_->CurrentTableRow()));
}

void frmMain::ModifyMemory(int row)
{
    if (!editor_->OpenMemory(row, memory_->Selector()))
        return;
    MarkChanged();
    memory_->UpDateMemData();
}

void frmMain::ModifyVfo(int row)
{
    if (row < 0 || !editor_->OpenVfo(row))
        return;
    MarkChanged();
    settings1_->UpdateVFOData();
}

void frmMain::mnuViewToolbar_Click()
{
    tbToolBar_->setVisible(menus_->Item("mnuViewToolbar").isChecked());
}

void frmMain::mnuStatusBar_Click()
{
    sbStatusBar_->setVisible(menus_->Item("mnuStatusBar").isChecked());
}

void frmMain::mnuToolsOptions_Click()
{
    dlgCOM dialog(this);
    dialog.ShowPorts(CommPort_);
    if (dialogs_.Run(dialog) != QDialog::Accepted)
        return;
    link_.Port().Close();
    SetCommPort(dialog.SelectedNumber());
}

void frmMain::ShowWriteOptions()
{
    const WriteOptions options = LoadWriteOptions();
    menus_->Item("mnuWrBackup").setChecked(options.keepsBackup);
    menus_->Item("mnuWrVerify").setChecked(options.verifies);
}

void frmMain::KeepWriteOptions()
{
    SaveWriteOptions({menus_->Item("mnuWrBackup").isChecked(), menus_->Item("mnuWrVerify").isChecked(),
                      LoadWriteOptions().backupFolder});
}

void frmMain::mnuWrBackupFolder_Click()
{
    WriteOptions options = LoadWriteOptions();
    const QString folder = dialogs_.ChooseFolder(this, tr("Backup Folder"), options.backupFolder);
    if (folder.isEmpty())
        return;
    options.backupFolder = folder;
    SaveWriteOptions(options);
}

void frmMain::closeEvent(QCloseEvent* event)
{
    if (transfers_->IsRunning()) {
        // The transfer ends first; the question comes when its last event has been handled.
        isClosePending_ = true;
        transfers_->Cancel();
        event->ignore();
        return;
    }
    if (!Form_QueryUnload()) {
        event->ignore();
        return;
    }
    Form_Unload();
    event->accept();
}

bool frmMain::Form_QueryUnload()
{
    banks_->CommitPending();
    return files_->MayLoseChanges();
}

void frmMain::Form_Unload()
{
    recovery_->End();
    WritePortFile(options_.portFile, CommPort_);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window)
        if (*window != this && (*window)->isVisible())
            (*window)->close();
    if (isMinimized())
        return;
    QSettings settings(QStringLiteral("Tervan"), QStringLiteral("Tervan RQ-M5 Clone Utility"));
    SavePlacement(*this, settings);
}

bool frmMain::event(QEvent* event)
{
    if (event->type() != QEvent::StatusTip)
        return QMainWindow::event(event);
    sbStatusBar_->ShowPointerHint(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
}

void frmMain::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        SetFormTexts(*this);
        setWindowTitle(files_->Caption());
        ShowStatus();
    }
    QMainWindow::changeEvent(event);
}

}  // namespace rqm5
