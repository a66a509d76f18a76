// Makes the pictures of README and manual: drives the real windows against the simulated receiver.
// Usage: rq-m5-screenshots FOLDER

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDockWidget>
#include <QLineEdit>
#include <QProgressBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

#include "app/start_up.h"
#include "app/write_options.h"
#include "files/file_store.h"
#include "link/port_file.h"
#include "link/qt_serial_port.h"
#include "memory/bank_layout.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"

namespace {

/// Takes a picture of every dialog in place of running it.
class PictureDialogs : public rqm5::Dialogs
{
  public:
    explicit PictureDialogs(const QDir& folder) : folder_(folder) {}

    QMessageBox::StandardButton Ask(QWidget*, const rqm5::Prompt& prompt) override
    {
        qCritical("%s", qPrintable(prompt.title + QLatin1Char('\n') + prompt.text + QLatin1Char('\n') +
                                   prompt.details));
        return QMessageBox::NoButton;
    }

    QString ChooseFile(QWidget*, rqm5::FileChoice, const QString&) override
    {
        return std::exchange(nextFile_, {});
    }

    /// The file that is chosen next.
    void NextFile(const QString& path) { nextFile_ = path; }

    QString ChooseFolder(QWidget*, const QString&, const QString&) override { return {}; }

    int Run(QDialog& dialog) override
    {
        dialog.show();
        // The screen without a display is small.
        dialog.resize(dialog.sizeHint().expandedTo(dialog.size()));
        constexpr int kFiles = 9;
        for (int i = 0; i < kFiles; ++i)
            QCoreApplication::processEvents();  // a list fills itself
        Save(dialog, dialog.objectName());
        dialog.close();
        return QDialog::Rejected;
    }

    void Save(QWidget& widget, const QString& name)
    {
        QCoreApplication::processEvents();
        const QString path = folder_.filePath(name + QStringLiteral(".png"));
        if (!widget.grab().save(path))
            qFatal("cannot write %s", qPrintable(path));
    }

  private:
    QDir folder_;
    QString nextFile_;
};

/// The part of a window that goes by this name; there is no picture without it.
template <typename Part>
Part& Find(const QWidget& window, const char* name)
{
    Part* part = window.findChild<Part*>(QLatin1String(name));
    if (part == nullptr)
        qFatal("no %s", name);
    return *part;
}

void Trigger(const QWidget& window, const char* item)
{
    Find<QAction>(window, item).trigger();
}

void SavePages(PictureDialogs& dialogs, QWidget& window)
{
    auto& tabs = Find<QTabWidget>(window, "TabStrip1");
    const char* const pages[] = {"settings-1", "settings-2", "memory", "bank"};
    for (int i = 0; i < tabs.count(); ++i) {
        tabs.setCurrentIndex(i);
        dialogs.Save(window, QLatin1String(pages[i]));
    }
    tabs.setCurrentIndex(2);
}

void SavePaste(QWidget& window)
{
    QGuiApplication::clipboard()->setText(
        QStringLiteral("Name\tMHz\tMode\nTower\t118,1\tAM\nHF\t14.2\tUSB\nGround\t121,9\tAM\n"));
    Trigger(window, "mnuEditPaste");
}

void SaveImport(PictureDialogs& dialogs, QWidget& window, const QTemporaryDir& folder)
{
    const QString path = folder.filePath(QStringLiteral("airport.csv"));
    rqm5::WriteWholeFile(path,
                         "Dienst;Frequenz MHz;Betriebsart;Ort\nTower;118,100;AM;EDDK\n"
                         "Ground;121,850;AM;EDDK\nATIS;132,130;AM;EDDK\nRichtfunk;2400,000;FM;\n");
    dialogs.NextFile(path);
    Trigger(window, "mnuFileImport");
}

/// Channels found while somebody types, and frequencies that are stored twice.
void SaveFinds(PictureDialogs& dialogs, QWidget& window)
{
    Trigger(window, "mnuEditFind");
    auto& box = Find<QLineEdit>(window, "txtFind");
    box.setText(QStringLiteral("145.6"));
    dialogs.Save(window, QStringLiteral("find"));
    box.clear();
    Trigger(window, "mnuToolsDuplicates");
    dialogs.Save(Find<QWidget>(window, "dlgDuplicates"), QStringLiteral("duplicates"));
    Find<QWidget>(window, "dlgDuplicates").close();
}

/// A file that holds something else, compared with the open image, and a list of backups.
void SaveCompare(PictureDialogs& dialogs, QWidget& window, const QTemporaryDir& folder)
{
    rqm5::CloneImage other = rqm5::DemoImage(0);
    rqm5::CloneImage older = other;
    other.MemData(3).mode = 1;
    other.MemData(5).note = "Tower";
    std::swap(other.MemData(0), other.MemData(1));
    other.MemData(2) = {};
    other.Settings().volume = 20;
    const QString file = folder.filePath(QStringLiteral("club.RQ5"));
    rqm5::SaveCloneFile(file, other);
    const QDateTime day(QDate(2026, 1, 31), QTime(18, 5, 10));
    QFile saved(file);
    if (!saved.open(QIODevice::ReadWrite) || !saved.setFileTime(day, QFileDevice::FileModificationTime))
        qFatal("no %s", qPrintable(file));
    saved.close();
    dialogs.NextFile(file);
    Trigger(window, "mnuToolsCompare");
    auto& compare = Find<QWidget>(window, "dlgCompare");
    Find<QAbstractButton>(compare, "cmbCompareFile").click();
    auto& tree = Find<QTreeWidget>(compare, "lstCompare");
    tree.topLevelItem(0)->child(3)->setExpanded(true);
    compare.resize(1000, 460);
    dialogs.Save(compare, QStringLiteral("compare"));
    compare.close();

    const QString kept = folder.filePath(QStringLiteral("RQ-M5 backups"));
    if (!QDir().mkpath(kept))
        qFatal("no %s", qPrintable(kept));
    rqm5::SaveWriteOptions({false, false, kept});
    rqm5::SaveCloneFile(rqm5::NewBackupPath(kept, {}, day), other);
    rqm5::SaveCloneFile(rqm5::NewBackupPath(kept, {.memory = false}, day.addDays(2)), older);
    rqm5::SaveCloneFile(rqm5::NewBackupPath(kept, {}, day.addDays(9)), older);
    Trigger(window, "mnuFileBackups");
}

/// A bank that grows, and the offer to move the channels behind it.
void SaveBankMove(PictureDialogs& dialogs, QWidget& window)
{
    auto& tabs = Find<QTabWidget>(window, "TabStrip1");
    tabs.setCurrentIndex(3);
    // A size is taken when its box loses the focus, which only the active window has.
    window.activateWindow();
    QCoreApplication::processEvents();
    auto& size = Find<QLineEdit>(window, "txtBank_1");
    size.setFocus();
    size.setText(QStringLiteral("60"));
    Find<QLineEdit>(window, "txtBank_2").setFocus();
    dialogs.Save(window, QStringLiteral("bank-move"));
    Trigger(window, "mnuHistoryUndo");
    tabs.setCurrentIndex(2);
}

void SaveSpectrum(PictureDialogs& dialogs, QWidget& window)
{
    Trigger(window, "mnuViewSpectrum");
    auto& dock = Find<QDockWidget>(window, "dckSpectrum");
    dock.setFloating(true);
    dock.resize(1000, 520);
    dialogs.Save(dock, QStringLiteral("spectrum"));
    dock.close();
}

/// What a write would send after a channel was switched off.
void SaveChanges(QWidget& window)
{
    Find<QAbstractButton>(window, "cmbDisable").click();
    Trigger(window, "mnuWrChanges");
    Trigger(window, "mnuHistoryUndo");
}

void SaveDiagnostics(PictureDialogs& dialogs, QWidget& window)
{
    Trigger(window, "mnuViewDiagnostics");
    Find<QLineEdit>(window, "txtRawAddress").setText(QStringLiteral("1000"));
    Find<QAbstractButton>(window, "cmbRawRead").click();
    Find<QAbstractButton>(window, "cmbLinkTest").click();
    // The log shows what has come a moment later, all at once.
    QEventLoop moment;
    QTimer::singleShot(500, &moment, &QEventLoop::quit);
    moment.exec();
    dialogs.Save(Find<QWidget>(window, "dckDiagnostics"), QStringLiteral("diagnostics"));
}

}  // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    qputenv("HOME", settings.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1])))
        qFatal("usage: rq-m5-screenshots FOLDER");
    QApplication::setQuitOnLastWindowClosed(false);

    rqm5::SimSession receiver({.memory = rqm5::MemoryFromImage(rqm5::DemoImage(0))});
    PictureDialogs dialogs{QDir(QString::fromLocal8Bit(argv[1]))};
    rqm5::QtSerialPort port(receiver.Device());
    constexpr int kUsualCable = 5;
    rqm5::StartOptions options;
    options.portFile = settings.filePath(QStringLiteral("RQ-M5.ini"));
    rqm5::WritePortFile(options.portFile, kUsualCable);
    options.isPresent = [](const QString&) { return true; };
    options.splashTime = std::chrono::milliseconds(0);
    const auto window = rqm5::StartUp(port, dialogs, options);
    QObject::connect(window->findChild<QProgressBar*>(), &QProgressBar::valueChanged, window.get(),
                     [&](int row) {
                         constexpr int kSomewhere = 440;
                         if (row == kSomewhere)
                             dialogs.Save(*window, QStringLiteral("transfer"));
                     });
    window->resize(1000, 680);
    Trigger(*window, "mnuReAll");

    SavePages(dialogs, *window);
    SaveFinds(dialogs, *window);
    SaveBankMove(dialogs, *window);
    SaveCompare(dialogs, *window, settings);
    SaveChanges(*window);
    Trigger(*window, "mnuEditUndo");
    Trigger(*window, "mnuEditFillSeries");
    SavePaste(*window);
    SaveImport(dialogs, *window, settings);
    Trigger(*window, "mnuToolsOptions");
    Trigger(*window, "mnuFilePrint");
    SaveSpectrum(dialogs, *window);
    SaveDiagnostics(dialogs, *window);
}
