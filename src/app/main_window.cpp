#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QStatusTipEvent>
#include <QVBoxLayout>

#include "app/clone_drop.h"
#include "app/desktop_news.h"
#include "app/file_news.h"
#include "app/placement.h"
#include "app/spectrum_commands.h"
#include "memory/start_image.h"
#include "ui/form_texts.h"
#include "ui/icons.h"
#include "ui/plain_text.h"

namespace rqm5 {

namespace {

/// Shows the widest page whole; a smaller screen gets scroll bars.
constexpr QSize kUsualSize(1000, 680);
constexpr QSize kWindowFrame(8, 36);

}  // namespace

frmMain::frmMain(SerialPort& port, Dialogs& dialogs, const StartOptions& options)
    : document_(StartUpImage(0)), dialogs_(dialogs), options_(options), link_(port, this)
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowIcon(ProgramIcon());
    setContextMenuPolicy(Qt::NoContextMenu);  // it would hide the toolbar behind the View menu's back
    Timer1_.setSingleShot(true);
    Timer1_.setTimerType(Qt::PreciseTimer);
    Compose();
    ConnectFileMenus();
    ConnectTransferMenus();
    ConnectOtherMenus();
    ConnectDocument();
    resize(kUsualSize.boundedTo(screen()->availableSize() - kWindowFrame));
}

frmMain::~frmMain()
{
    // The pages show the document to their end, and a window that closes makes them draw once more.
    delete takeCentralWidget();
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
    pages_ = new Pages(document_, dialogs_, middle);
    pages_->Memory().AddRowItems(menus_->Menu("mnuEdit"));
    transferBar_ = new TransferBar(middle);
    messageBar_ = new MessageBar(middle);
    column->addWidget(messageBar_);
    column->addWidget(&pages_->Tabs(), 1);
    column->addWidget(transferBar_);
    setCentralWidget(middle);

    warnings_ = new StandingWarnings(*sbStatusBar_, *messageBar_);
    currentFile_ = new CurrentFile(document_, this);
    files_ = new FileCommands(document_, *currentFile_, dialogs_, *this);
    new FileNews(document_, *currentFile_, *files_, *messageBar_);
    edits_ = new EditCommands(document_, dialogs_, *pages_, *this);
    history_ = new HistoryCommands(document_, *menus_, *this);
    finds_ = new FindCommands(document_, *pages_, *this);
    ports_ = new PortCommands(link_.Port(), dialogs_, options_, *this);
    readOptions_ = new ReadOptionItems(*menus_, this);
    writeOptions_ = new WriteOptionItems(*menus_, dialogs_, *this);
    transfers_ = new TransferCommands(document_, link_, dialogs_, *this);
    offers_ = new Offers(document_, *transfers_, *writeOptions_, *menus_, *messageBar_);
    new DesktopNews(*transfers_, options_, *this);
    shell_ = new TransferShell(*transfers_, *menus_, *pages_, *history_, *transferBar_, *sbStatusBar_, *this);
    sides_ = new SideWindows(document_, link_, *transfers_, dialogs_, *ports_, options_, *this);
    new SpectrumCommands(document_, dialogs_, *pages_, *transfers_, menus_->Item("mnuViewSpectrum"), *this);
    recovery_ = new Recovery(document_, options_.stateFolder, options_.recoveryDelay, this);
    recovery_->SetMark([this] { return currentFile_->KnownMark(); });
}

void frmMain::ConnectMenu(ItemName name, std::function<void()> command)
{
    // What was typed into a bank box counts as left once a menu is chosen. A size that is refused stops the
    // command, unless its check mark has changed already.
    QAction& item = menus_->Item(name);
    connect(&item, &QAction::triggered, this, [this, &item, command = std::move(command)] {
        sbStatusBar_->ShowNote({});
        if (pages_->Banks().CommitPending() || item.isCheckable())
            command();
    });
}

void frmMain::ConnectFileMenus()
{
    ConnectMenu("mnuFileNew", [this] { files_->mnuFileNew_Click(); });
    ConnectMenu("mnuFileOpen", [this] { files_->mnuFileOpen_Click(); });
    ConnectMenu("mnuFileSave", [this] { files_->mnuFileSave_Click(); });
    ConnectMenu("mnuFileSaveAs", [this] { files_->mnuFileSaveAs_Click(); });
    ConnectMenu("mnuFileImport", [this] { files_->mnuFileImport_Click(); });
    ConnectMenu("mnuFileExport", [this] { files_->mnuFileExport_Click(); });
    ConnectMenu("mnuFileRepair", [this] { files_->mnuFileRepair_Click(); });
    ConnectMenu("mnuFilePrint", [this] { sides_->mnuFilePrint_Click(); });
    ConnectMenu("mnuFileExit", [this] { close(); });
    connect(files_, &FileCommands::Asking, this, &frmMain::Asking);
    connect(files_, &FileCommands::Noted, sbStatusBar_, &StatusBar::ShowNote);
    connect(files_, &FileCommands::NotesLost, this,
            [this](const QString& text) { warnings_->Set(StandingWarnings::Kind::Notes, text); });
    connect(files_, &FileCommands::NewDone, this, [this] { pages_->Memory().SelectGroup(kSelectAll); });
    connect(files_, &FileCommands::NothingImported, this, [this] {
        sbStatusBar_->ShowNote(tr("Nothing was imported: the file holds no record of this receiver."));
    });
}

void frmMain::ConnectTransferMenus()
{
    ConnectMenu("mnuReAll", [this] { shell_->Start(Transfer::ReadAll); });
    ConnectMenu("mnuReMemory", [this] { shell_->StartOn(Tab::Memory, Transfer::ReadMemory); });
    ConnectMenu("mnuReSettings", [this] { shell_->StartOn(Tab::Settings1, Transfer::ReadSettings); });
    ConnectMenu("mnuWrAll", [this] { shell_->Start(Transfer::WriteAll); });
    ConnectMenu("mnuWrMemory", [this] { shell_->StartOn(Tab::Memory, Transfer::WriteMemory); });
    ConnectMenu("mnuWrSettings", [this] { shell_->StartOn(Tab::Settings1, Transfer::WriteSettings); });
    ConnectMenu("mnuReVerify", [this] { readOptions_->mnuReVerify_Click(); });
    ConnectMenu("mnuWrBackup", [this] { writeOptions_->Keep(); });
    ConnectMenu("mnuWrVerify", [this] { writeOptions_->Keep(); });
    ConnectMenu("mnuWrBackupFolder", [this] { writeOptions_->mnuWrBackupFolder_Click(); });
    connect(transfers_, &TransferCommands::Started, messageBar_, [this] { messageBar_->setEnabled(false); });
    connect(transfers_, &TransferCommands::Ended, this, [this] {
        messageBar_->setEnabled(true);
        if (std::exchange(isClosePending_, false))
            QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    });
}

void frmMain::ConnectOtherMenus()
{
    ConnectMenu("mnuHistoryUndo", [this] { document_.History().undo(); });
    ConnectMenu("mnuHistoryRedo", [this] { document_.History().redo(); });
    ConnectMenu("mnuEditUndo", [this] { edits_->mnuEditUndo_Click(); });
    ConnectMenu("mnuEditFind", [this] { finds_->mnuEditFind_Click(); });
    ConnectMenu("mnuEditFindNext", [this] { finds_->mnuEditFindNext_Click(); });
    ConnectMenu("mnuEditFindPrevious", [this] { finds_->mnuEditFindPrevious_Click(); });
    ConnectMenu("mnuToolsDuplicates", [this] { finds_->mnuToolsDuplicates_Click(); });
    ConnectMenu("mnuViewToolbar",
                [this] { tbToolBar_->setVisible(menus_->Item("mnuViewToolbar").isChecked()); });
    ConnectMenu("mnuStatusBar", [this] {
        sbStatusBar_->setVisible(menus_->Item("mnuStatusBar").isChecked());
        warnings_->Show();
    });
    ConnectMenu("mnuToolsOptions", [this] { ports_->mnuToolsOptions_Click(); });
    ConnectMenu("mnuHelpContents", [this] { sides_->mnuHelpContents_Click(); });
    ConnectMenu("mnuHelpAbout", [this] { sides_->mnuHelpAbout_Click(); });
    sides_->ConnectDiagnostics(menus_->Item("mnuViewDiagnostics"));
    connect(&pages_->Tabs(), &TabStrip::Switched, this, &frmMain::TabStrip1_Click);
    connect(&pages_->Memory(), &MemoryPage::HintChanged, sbStatusBar_, [this] {
        // What the keyboard has just gone to, wherever the pointer rests.
        sbStatusBar_->ShowPointerHint({});
        sbStatusBar_->ShowHintOf(focusWidget());
    });
    connect(new CloneDrop(*this, menus_->Item("mnuFileOpen")), &CloneDrop::Dropped, files_,
            &FileCommands::OpenDropped);
    connect(ports_, &PortCommands::PortChosen, sbStatusBar_, &StatusBar::ShowPort);
}

void frmMain::ConnectDocument()
{
    connect(&document_, &Document::StateChanged, this, &frmMain::ShowState);
    connect(&document_, &Document::Changed, this, [this] { sbStatusBar_->ShowDocument(document_); });
    connect(&document_, &Document::Stepped, this, [this](const ImageChange& change) {
        const QPointer<QWidget> focus = focusWidget();
        pages_->GoTo(change);
        // Whoever walks through the list of steps goes on walking.
        if (focus && focus->objectName() == QLatin1String("lstHistory"))
            focus->setFocus();
    });
    connect(&pages_->Memory(), &MemoryPage::Noted, sbStatusBar_, &StatusBar::ShowNote);
    connect(recovery_, &Recovery::Asking, this, &frmMain::Asking);
    connect(recovery_, &Recovery::Kept, warnings_, [this](const QString& reason) {
        warnings_->Set(
            StandingWarnings::Kind::NotKept,
            reason.isEmpty() ? QString() : tr("Unsaved changes cannot be kept for recovery: %1").arg(reason));
    });
}

void frmMain::Form_Load()
{
    setWindowTitle(files_->Caption());
    SetFormTexts(*this);
    ports_->Load();
    ShowState();
    WaitForSplash();
    setWindowTitle(files_->Caption());
    pages_->Tabs().Select(Tab::Settings1);
    const QString& wanted = options_.commandFile;
    const bool isRecovered = RecoverWork();
    if (!isRecovered && !wanted.isEmpty())
        files_->Load(wanted);
    offers_->ShowFirstLook();
    if (isRecovered && !wanted.isEmpty() && QFileInfo(wanted).absoluteFilePath() != document_.FileName())
        sbStatusBar_->ShowNote(tr("Recovered changes came first; not opened: %1").arg(VisibleText(wanted)));
}

bool frmMain::RecoverWork()
{
    return recovery_->Offer(dialogs_, this,
                            [this](const RecoveryFile& file) { return files_->Recover(file); });
}

void frmMain::WaitForSplash()
{
    QEventLoop wait;
    connect(&Timer1_, &QTimer::timeout, &wait, &QEventLoop::quit);
    QElapsedTimer clock;
    clock.start();
    // A timer may end a little before its time; the window never comes early.
    auto left = options_.splashTime;
    do {
        Timer1_.start(left);
        wait.exec();
        left = options_.splashTime - std::chrono::milliseconds(clock.elapsed());
    } while (left > left.zero());
}

/// After an edit, or when another file has become the current one.
void frmMain::ShowState()
{
    setWindowTitle(files_->Caption());
    // A note is about what has just happened, and this came later.
    sbStatusBar_->ShowNote({});
    if (!document_.DataChanged())
        warnings_->Set(StandingWarnings::Kind::NotKept, {});
    sbStatusBar_->ShowDocument(document_);
}

void frmMain::TabStrip1_Click(Tab tab)
{
    menus_->SetPossible("mnuEditUndo", tab == Tab::Settings1 || tab == Tab::Memory);
    if (tab == Tab::Memory)
        pages_->Memory().FocusSelector();
    sbStatusBar_->ShowHintOf(focusWidget());
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
    if (isSessionEnding_) {
        KeepWork();
        event->accept();
        return;
    }
    if (!Form_QueryUnload()) {
        event->ignore();
        return;
    }
    Form_Unload();
    event->accept();
}

void frmMain::KeepWork()
{
    recovery_->KeepNow();
    ports_->Save();
    transfers_->Cancel();
}

void frmMain::EndSession()
{
    KeepWork();
    isSessionEnding_ = true;
    qApp->installEventFilter(this);
}

/// Whoever presses a key or a button goes on working.
bool frmMain::eventFilter(QObject* /*watched*/, QEvent* event)
{
    const bool isInput = event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress;
    if (isInput && event->spontaneous()) {
        isSessionEnding_ = false;
        qApp->removeEventFilter(this);
    }
    return false;
}

bool frmMain::Form_QueryUnload()
{
    return pages_->Banks().CommitPending() && files_->MayLoseChanges();
}

void frmMain::Form_Unload()
{
    recovery_->End();
    ports_->Save();
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
        history_->ShowItems();
        ShowState();
    }
    QMainWindow::changeEvent(event);
}

}  // namespace rqm5
