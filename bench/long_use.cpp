// Long use: does the program need more memory or more open files the longer it runs?
//
//   long_use transfers [ROUNDS]   whole reads and writes over a line with random faults, in one process
//   long_use files [ROUNDS]       open, edit, save in the real windows, which nobody sees

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <map>
#include <optional>

#include "app/start_up.h"
#include "files/file_store.h"
#include "link/qt_serial_port.h"
#include "link/receiver_reader.h"
#include "link/receiver_writer.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"
#include "ui/scripted_dialogs.h"

namespace {

using namespace rqm5;

constexpr int kLines = 10;  ///< of the table

double ResidentMiB()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (file.open(QIODevice::ReadOnly))
        for (const QByteArray& line : file.readAll().split('\n'))
            if (line.startsWith("VmRSS:"))
                return line.simplified().split(' ').at(1).toDouble() / 1024;
    return 0;
}

int OpenFiles()
{
    return static_cast<int>(
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size());
}

/// A line at the first round and at each tenth of the way.
void Report(int round, int rounds)
{
    if (round == 1 || round % std::max(1, rounds / kLines) == 0) {
        std::printf("| %d | %.1f MiB | %d |\n", round, ResidentMiB(), OpenFiles());
        std::fflush(stdout);
    }
}

struct CountingObserver : TransferObserver
{
    void BlockDone(int, bool) override { ++blocks; }
    void Message(const Problem& problem) override { ++messages[problem.text]; }

    long blocks = 0;
    std::map<std::string, int> messages;
};

std::vector<Fault> RandomFaults()
{
    std::vector<Fault> faults;
    for (const char* text : {"garble:1%", "ng:1%", "noise:2%", "cut:0.5%", "drop:0.5%", "no-echo:0.5%",
                             "silent:0.2%", "hang-up:0.01%"})
        faults.push_back(ParseFault(text).value());
    return faults;
}

int RunTransfers(int rounds)
{
    const QTemporaryDir folder;
    SimSession receiver({.memory = MemoryFromImage(DemoImage(1)),
                         .link = folder.filePath(QStringLiteral("port")).toStdString()});
    QtSerialPort port(receiver.Device());
    RadioLink link(port);
    link.SetTimeOut(std::chrono::milliseconds(20));
    CountingObserver observer;
    CloneImage image = DemoImage(1);
    ReceiverReader reader(image, link, observer);
    const auto writeAll = [&] { return ReceiverWriter(image, {}, link, observer).Write(); };
    int whole = 0;
    receiver.SetFaults(RandomFaults());
    for (int round = 1; round <= rounds; ++round) {
        whole += reader.ReadAll() == TransferResult::Done ? 1 : 0;
        whole += writeAll() == TransferResult::Done ? 1 : 0;
        receiver.ClearCommandLog();
        Report(round, rounds);
    }
    receiver.SetFaults({});
    link.SetTimeOut(RadioLink::kTimeOut);
    const bool isWhole = writeAll() == TransferResult::Done && reader.ReadAll() == TransferResult::Done;
    std::printf("\n%d of %d transfers came through whole, %ld blocks moved", whole, 2 * rounds,
                observer.blocks);
    for (const auto& [text, count] : observer.messages)
        std::printf(", %d times \"%s\"", count, text.c_str());
    std::printf("; without faults afterwards: %s\n", isWhole ? "whole" : "FAILED");
    return isWhole ? 0 : 1;
}

int RunFiles(int rounds)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("radio.RQ5"));
    if (SaveCloneFile(path, DemoImage(1)).problem)
        return 1;
    QtSerialPort port{QString()};
    ScriptedDialogs dialogs;
    StartOptions options;
    options.portFile = folder.filePath(QStringLiteral("RQ-M5.ini"));
    options.stateFolder = folder.filePath(QStringLiteral("state"));
    options.recoveryDelay = std::chrono::milliseconds(0);
    options.splashTime = std::chrono::milliseconds(0);
    const auto window = StartUp(port, dialogs, options);
    for (int round = 1; round <= rounds; ++round) {
        dialogs.files = {path};
        window->findChild<QAction*>(QStringLiteral("mnuFileOpen"))->trigger();
        const QString button = QStringLiteral("opbScanMode_%1").arg(round % 2);
        window->findChild<QAbstractButton*>(button)->click();
        QApplication::processEvents();  // so that the changes go to the recovery file, too
        window->findChild<QAction*>(QStringLiteral("mnuFileSave"))->trigger();
        Report(round, rounds);
    }
    CloneImage image;
    const bool isSaved = !LoadCloneFile(path, image) && image.Settings().scanMode == rounds % 2;
    std::printf("\n%zu messages; the file holds the last edit: %s\n", dialogs.asked.size(),
                isSaved ? "yes" : "NO");
    return isSaved && dialogs.asked.empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;  // nobody's settings
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList words = QApplication::arguments();
    const QString part = words.value(1);
    QElapsedTimer clock;
    clock.start();
    int status = 2;
    if (part == QLatin1String("transfers"))
        status = RunTransfers(words.value(2, QStringLiteral("200")).toInt());
    else if (part == QLatin1String("files"))
        status = RunFiles(words.value(2, QStringLiteral("1000")).toInt());
    else
        std::puts("long_use transfers|files [ROUNDS]");
    std::printf("%.1f s\n", static_cast<double>(clock.elapsed()) / 1000);
    return status;
}
