#include "app/window_tour.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QDockWidget>
#include <QLineEdit>
#include <QProgressBar>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>

#include "app/splash.h"
#include "app/start_up.h"
#include "app/write_options.h"
#include "files/file_store.h"
#include "link/port_file.h"
#include "memory/bank_layout.h"
#include "simulator/demo_image.h"
#include "ui/message_dialogs.h"

namespace rqm5 {

namespace {

constexpr int kUsualCable = 5;
constexpr QSize kUsualSize(1000, 680);

/// Lists and texts fill themselves in steps.
void Settle()
{
    constexpr int kSteps = 9;
    for (int i = 0; i < kSteps; ++i)
        QCoreApplication::processEvents();
}

}  // namespace

WindowTour::WindowTour(Look look)
    : look_(std::move(look)), receiver_({.memory = MemoryFromImage(DemoImage(0))}), port_(receiver_.Device())
{
}

WindowTour::~WindowTour() = default;

template <typename Part>
Part& WindowTour::Find(const char* name) const
{
    Part* part = window_->findChild<Part*>(QLatin1String(name));
    if (part == nullptr)
        qFatal("no %s", name);
    return *part;
}

void WindowTour::Start()
{
    StartOptions options;
    options.portFile = folder_.filePath(QStringLiteral("RQ-M5.ini"));
    WritePortFile(options.portFile, kUsualCable);
    options.isPresent = [](const QString&) { return true; };
    options.splashTime = std::chrono::milliseconds(0);
    window_ = StartUp(port_, *this, options);
    window_->resize(kUsualSize);
    const auto transfer = QObject::connect(window_->findChild<QProgressBar*>(), &QProgressBar::valueChanged,
                                           window_.get(), [this](int row) {
                                               constexpr int kSomewhere = 440;
                                               if (row == kSomewhere)
                                                   Show(*window_, QStringLiteral("transfer"));
                                           });
    Trigger("mnuReAll");
    QObject::disconnect(transfer);
}

void WindowTour::Go()
{
    ShowPages();
    ShowFinds();
    ShowBankMove();
    ShowCompare();
    ShowEditing();
    ShowImports();
    ShowDocks();
    ShowDiagnostics();
    ShowHelp();
    ShowConflict();
    ShowQuestions();
}

QMessageBox::StandardButton WindowTour::Ask(QWidget* parent, const Prompt& prompt)
{
    if (!isAsking_) {
        qCritical("%s", qPrintable(prompt.title + QLatin1Char('\n') + prompt.text + QLatin1Char('\n') +
                                   prompt.details));
        return QMessageBox::NoButton;
    }
    QTimer::singleShot(0, window_.get(), [this] {
        QWidget* box = QApplication::activeModalWidget();
        if (box == nullptr)
            qFatal("no message box");
        Show(*box, QStringLiteral("question"));
        box->close();
    });
    return MessageDialogs().Ask(parent, prompt);
}

QString WindowTour::ChooseFile(QWidget*, FileChoice, const QString&)
{
    return std::exchange(nextFile_, {});
}

QString WindowTour::ChooseFolder(QWidget*, const QString&, const QString&)
{
    return {};
}

int WindowTour::Run(QDialog& dialog)
{
    dialog.show();
    // The screen without a display is small.
    dialog.resize(dialog.sizeHint().expandedTo(dialog.size()));
    Show(dialog, dialog.objectName());
    dialog.close();
    return isWriting_ && dialog.objectName() == QLatin1String("dlgWriteChanges") ? QDialog::Accepted
                                                                                 : QDialog::Rejected;
}

void WindowTour::Show(QWidget& window, const QString& name)
{
    Settle();
    look_(window, name);
}

void WindowTour::Trigger(const char* item)
{
    Find<QAction>(item).trigger();
}

void WindowTour::ShowPages()
{
    frmSplash splash;
    splash.ShowAtOnce();
    Show(splash, splash.objectName());
    auto& tabs = Find<QTabWidget>("TabStrip1");
    const char* const pages[] = {"settings-1", "settings-2", "memory", "bank"};
    for (int i = 0; i < tabs.count(); ++i) {
        tabs.setCurrentIndex(i);
        Show(*window_, QLatin1String(pages[i]));
    }
    tabs.setCurrentIndex(2);
}

/// Channels found while somebody types, and frequencies that are stored twice.
void WindowTour::ShowFinds()
{
    Trigger("mnuEditFind");
    auto& box = Find<QLineEdit>("txtFind");
    box.setText(QStringLiteral("145.6"));
    Show(*window_, QStringLiteral("find"));
    box.clear();
    Trigger("mnuToolsDuplicates");
    auto& duplicates = Find<QWidget>("dlgDuplicates");
    Show(duplicates, QStringLiteral("duplicates"));
    duplicates.close();
}

/// A bank that grows, and the offer to move the channels behind it.
void WindowTour::ShowBankMove()
{
    auto& tabs = Find<QTabWidget>("TabStrip1");
    tabs.setCurrentIndex(3);
    // A size is taken when its box loses the focus, which only the active window has.
    window_->activateWindow();
    QCoreApplication::processEvents();
    auto& size = Find<QLineEdit>("txtBank_1");
    size.setFocus();
    size.setText(QStringLiteral("60"));
    Find<QLineEdit>("txtBank_2").setFocus();
    Show(*window_, QStringLiteral("bank-move"));
    Trigger("mnuHistoryUndo");
    tabs.setCurrentIndex(2);
}

/// A file that holds something else, compared with the open image.
void WindowTour::ShowCompare()
{
    CloneImage other = DemoImage(0);
    const CloneImage older = other;
    other.MemData(3).mode = 1;
    other.MemData(5).note = "Tower";
    std::swap(other.MemData(0), other.MemData(1));
    other.MemData(2) = {};
    other.Settings().volume = 20;
    const QString file = folder_.filePath(QStringLiteral("club.RQ5"));
    SaveCloneFile(file, other);
    const QDateTime day(QDate(2026, 1, 31), QTime(18, 5, 10));
    QFile saved(file);
    if (!saved.open(QIODevice::ReadWrite) || !saved.setFileTime(day, QFileDevice::FileModificationTime))
        qFatal("no %s", qPrintable(file));
    saved.close();
    nextFile_ = file;
    Trigger("mnuToolsCompare");
    auto& compare = Find<QWidget>("dlgCompare");
    compare.findChild<QAbstractButton*>(QStringLiteral("cmbCompareFile"))->click();
    compare.findChild<QTreeWidget*>(QStringLiteral("lstCompare"))
        ->topLevelItem(0)
        ->child(3)
        ->setExpanded(true);
    compare.resize(1000, 460);
    Show(compare, QStringLiteral("compare"));
    compare.close();
    ShowBackups(day, older, other);
}

void WindowTour::ShowBackups(const QDateTime& day, const CloneImage& older, const CloneImage& newer)
{
    const QString kept = folder_.filePath(QStringLiteral("RQ-M5 backups"));
    if (!QDir().mkpath(kept))
        qFatal("no %s", qPrintable(kept));
    SaveWriteOptions({false, false, kept});
    SaveCloneFile(NewBackupPath(kept, {}, day), newer);
    SaveCloneFile(NewBackupPath(kept, {.memory = false}, day.addDays(2)), older);
    SaveCloneFile(NewBackupPath(kept, {}, day.addDays(9)), older);
    Trigger("mnuFileBackups");
    // What a write would send after a channel was switched off.
    Find<QAbstractButton>("cmbDisable").click();
    Trigger("mnuWrChanges");
    Trigger("mnuHistoryUndo");
}

void WindowTour::ShowEditing()
{
    Trigger("mnuEditUndo");
    Trigger("mnuEditFillSeries");
    Trigger("mnuEditCopy");
    Trigger("mnuEditPasteSpecial");
    QGuiApplication::clipboard()->setText(
        QStringLiteral("Name\tMHz\tMode\nTower\t118,1\tAM\nHF\t14.2\tUSB\nGround\t121,9\tAM\n"));
    Trigger("mnuEditPaste");
}

void WindowTour::ShowImports()
{
    const QString path = folder_.filePath(QStringLiteral("airport.csv"));
    WriteWholeFile(path,
                   "Dienst;Frequenz MHz;Betriebsart;Ort\nTower;118,100;AM;EDDK\n"
                   "Ground;121,850;AM;EDDK\nATIS;132,130;AM;EDDK\nRichtfunk;2400,000;FM;\n");
    nextFile_ = path;
    Trigger("mnuFileImport");
    Trigger("mnuFileExportList");
    Trigger("mnuToolsOptions");
    Trigger("mnuFilePrint");
    Trigger("mnuHelpAbout");
}

void WindowTour::ShowDocks()
{
    Trigger("mnuViewSpectrum");
    auto& spectrum = Find<QDockWidget>("dckSpectrum");
    spectrum.setFloating(true);
    spectrum.resize(1000, 520);
    Show(spectrum, QStringLiteral("spectrum"));
    spectrum.close();
    Find<QAbstractButton>("cmbDisable").click();
    Trigger("mnuViewHistory");
    Show(*window_, QStringLiteral("history"));
    Trigger("mnuHistoryUndo");
    Trigger("mnuViewHistory");
}

void WindowTour::ShowDiagnostics()
{
    Trigger("mnuViewDiagnostics");
    Find<QLineEdit>("txtRawAddress").setText(QStringLiteral("1000"));
    Find<QAbstractButton>("cmbRawRead").click();
    Find<QAbstractButton>("cmbLinkTest").click();
    // The log shows what has come a moment later, all at once.
    QEventLoop moment;
    QTimer::singleShot(500, &moment, &QEventLoop::quit);
    moment.exec();
    Show(Find<QWidget>("dckDiagnostics"), QStringLiteral("diagnostics"));
    Find<QDockWidget>("dckDiagnostics").close();
}

void WindowTour::ShowHelp()
{
    Trigger("mnuHelpContents");
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String("frmHelp")) {
            Show(*window, QStringLiteral("help"));
            window->close();
        }
}

/// The same settings, changed here and at the receiver.
void WindowTour::ShowConflict()
{
    constexpr int kSettings2 = 0x0050;
    constexpr int kLamp = 4;
    ReceiverMemory memory = receiver_.Memory();
    memory.At(kSettings2).SetByte(kLamp, 1);
    receiver_.SetMemory(memory);
    Find<QTabWidget>("TabStrip1").setCurrentIndex(0);
    Find<QAbstractButton>("opbScanMode_1").click();
    isWriting_ = true;
    Trigger("mnuWrChanges");
    isWriting_ = false;
    Trigger("mnuHistoryUndo");
}

/// Boxes that wait for an answer, each closed without one.
void WindowTour::ShowQuestions()
{
    isAsking_ = true;
    Find<QAbstractButton>("cmbDisable").click();
    Trigger("mnuFileNew");
    Trigger("mnuHistoryUndo");
    const QString file = folder_.filePath(QStringLiteral("torn.RQ5"));
    WriteWholeFile(file, "Tervan");
    for (const QString& path : {file, folder_.filePath(QStringLiteral("gone.RQ5"))}) {
        nextFile_ = path;
        Trigger("mnuFileOpen");
    }
    isAsking_ = false;
}

}  // namespace rqm5
