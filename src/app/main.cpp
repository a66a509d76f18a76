#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QTranslator>

#include "app/command_file.h"
#include "app/ending.h"
#include "app/recovery.h"
#include "app/start_up.h"
#include "files/file_store.h"
#include "files/plain_settings.h"
#include "link/port_file.h"
#include "link/qt_serial_port.h"
#include "ui/icons.h"
#include "ui/message_dialogs.h"

namespace {

QStringList FileArguments(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QApplication::translate("main", "Reads, edits and writes the memory of an RQ-M5 receiver."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QApplication::translate("main", "Clone file to open."),
                                 QStringLiteral("[FILE]"));
    parser.process(application);
    return parser.positionalArguments();
}

}  // namespace

int main(int argc, char** argv)
{
    rqm5::TurnFileSizeLimitIntoError();
    rqm5::PassOverSettingsThatAreNoFiles();
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tervan"));
    QApplication::setApplicationName(QStringLiteral("Tervan RQ-M5 Clone Utility"));
    QApplication::setApplicationVersion(QStringLiteral(RQM5_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("rq-m5-clone"));
    QApplication::setWindowIcon(rqm5::ProgramIcon());

    QTranslator translator;
    const QString folder = QApplication::applicationDirPath();
    if (translator.load(QLocale(), QStringLiteral("rq-m5-clone"), QStringLiteral("_"),
                        folder + QStringLiteral("/translations")))
        QApplication::installTranslator(&translator);

    rqm5::QtSerialPort port{QString()};
    rqm5::MessageDialogs dialogs;
    rqm5::StartOptions options;
    options.commandFile = rqm5::CommandFile(rqm5::CommandLineText(FileArguments(application)));
    options.portFile = rqm5::PortFilePath(folder);
    options.stateFolder = rqm5::StateFolder();
    options.useDevice = [&port](const QString& device) { port.SetDevice(device); };
    rqm5::ProgramEnd end;
    const auto window = rqm5::StartUp(port, dialogs, options);
    return end.Exec(*window);
}
