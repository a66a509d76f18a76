#include "app/main_window.h"

#include <QCloseEvent>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QPointer>
#include <QScreen>
#include <QStatusTipEvent>

#include "app/closing.h"
#include "app/edit_commands.h"
#include "app/file_commands.h"
#include "app/import_commands.h"
#include "app/menu_commands.h"
#include "app/menus.h"
#include "app/offers.h"
#include "app/pages.h"
#include "app/port_commands.h"
#include "app/recent_files.h"
#include "app/recovery.h"
#include "app/standing_warnings.h"
#include "app/status_bar.h"
#include "app/transfer_commands.h"
#include "memory/start_image.h"
#include "ui/form_texts.h"
#include "ui/icons.h"
#include "ui/message_bar.h"
#include "ui/off_colour.h"
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
    KeepTextsReadable();
    setContextMenuPolicy(
        Qt::NoContextMenu);  // its own menu could hide the toolbar, and View > Toolbar would stay checked
    Timer1_.setSingleShot(true);
    Timer1_.setTimerType(Qt::PreciseTimer);
    link_.Knowledge().KeepIn(options_.cacheFolder);
    parts_ = MakeWindowParts(document_, link_, dialogs_, options_, *this);
    new MenuCommands(document_, parts_, *this);
    closing_ =
        new Closing(*parts_.pages, *parts_.files, *parts_.ports, *parts_.recovery, *parts_.transfers, *this);
    ConnectDocument();
    ConnectQuestions();
    resize(kUsualSize.boundedTo(screen()->availableSize() - kWindowFrame));
}

frmMain::~frmMain()
{
    // The pages show the document to their end, and a window that closes makes them draw once more.
    delete takeCentralWidget();
}

void frmMain::LoadEditor()
{
    parts_.edits->LoadEditor();
}

int frmMain::CommPort() const
{
    return parts_.ports->CommPort();
}

void frmMain::KeepWork()
{
    closing_->KeepWork();
}

void frmMain::EndSession()
{
    closing_->EndSession();
}

void frmMain::ConnectDocument()
{
    connect(&document_, &Document::StateChanged, this, &frmMain::ShowState);
    connect(&document_, &Document::Changed, this, [this] { parts_.statusBar->ShowDocument(document_); });
    connect(&document_, &Document::Stepped, this, [this](const ImageChange& change) {
        const QPointer<QWidget> focus = focusWidget();
        parts_.pages->GoTo(change);
        // Going to the rows takes the focus; the arrow keys of the list shall go on working.
        if (focus && focus->objectName() == QLatin1String("lstHistory"))
            focus->setFocus();
    });
    connect(&parts_.pages->Memory(), &MemoryPage::Noted, parts_.statusBar, &StatusBar::ShowNote);
    connect(parts_.recovery, &Recovery::Kept, parts_.warnings, [this](const Message& reason) {
        parts_.warnings->Set(
            StandingWarnings::Kind::NotKept,
            reason.empty() ? Message()
                           : Message(MESSAGE("Unsaved changes cannot be kept for recovery: %1"), {reason}));
    });
}

void frmMain::ConnectQuestions()
{
    connect(&parts_.pages->Tabs(), &TabStrip::Switched, this, &frmMain::TabStrip1_Click);
    connect(parts_.files, &FileCommands::Asking, this, &frmMain::Asking);
    connect(parts_.imports, &ImportCommands::Asking, this, &frmMain::Asking);
    connect(parts_.recovery, &Recovery::Asking, this, &frmMain::Asking);
    connect(parts_.transfers, &TransferCommands::Started, this, [this] { SetTransferRunning(true); });
    connect(parts_.transfers, &TransferCommands::Ended, this, [this] { SetTransferRunning(false); });
}

void frmMain::SetTransferRunning(bool isRunning)
{
    parts_.messageBar->setEnabled(!isRunning);
    parts_.recentFiles->SetTransferRunning(isRunning);
}

void frmMain::Form_Load()
{
    setWindowTitle(parts_.files->Caption());
    SetFormTexts(*this);
    parts_.ports->Load();
    ShowState();
    WaitForSplash();
    setWindowTitle(parts_.files->Caption());
    parts_.pages->Tabs().Select(Tab::Settings1);
    const QString& wanted = options_.commandFile;
    const bool isRecovered = RecoverWork();
    if (!isRecovered && !wanted.isEmpty())
        parts_.files->Load(wanted);
    parts_.offers->ShowFirstLook();
    if (isRecovered && !wanted.isEmpty() && QFileInfo(wanted).absoluteFilePath() != document_.FileName())
        parts_.statusBar->ShowNote(
            tr("Recovered changes came first; not opened: %1").arg(VisibleText(wanted)));
}

bool frmMain::RecoverWork()
{
    return parts_.recovery->Offer(dialogs_, this,
                                  [this](const RecoveryFile& file) { return parts_.files->Recover(file); });
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
    setWindowTitle(parts_.files->Caption());
    // A note is about what has just happened, and this came later.
    parts_.statusBar->ShowNote({});
    if (!document_.DataChanged())
        parts_.warnings->Set(StandingWarnings::Kind::NotKept, {});
    parts_.statusBar->ShowDocument(document_);
}

void frmMain::TabStrip1_Click(Tab tab)
{
    parts_.menus->SetPossible("mnuEditUndo", tab == Tab::Settings1 || tab == Tab::Memory);
    if (tab == Tab::Memory)
        parts_.pages->Memory().FocusSelector();
    parts_.statusBar->ShowHintOf(focusWidget());
}

void frmMain::closeEvent(QCloseEvent* event)
{
    event->setAccepted(closing_->MayClose());
}

bool frmMain::event(QEvent* event)
{
    // Later, because every widget is still being told.
    if (event->type() == QEvent::ApplicationPaletteChange)
        QMetaObject::invokeMethod(this, &KeepTextsReadable, Qt::QueuedConnection);
    if (event->type() != QEvent::StatusTip)
        return QMainWindow::event(event);
    parts_.statusBar->ShowPointerHint(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
}

void frmMain::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        SetFormTexts(*this);
        parts_.pages->Tabs().ShowTip();
        ShowState();
        parts_.statusBar->ShowHintOf(focusWidget());
    }
    QMainWindow::changeEvent(event);
}

}  // namespace rqm5
