#include <QApplication>
#include <QCommandLineParser>
#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "app/command_file.h"
#include "app/desktop_link.h"
#include "app/ending.h"
#include "app/language_menu.h"
#include "app/recovery.h"
#include "app/start_up.h"
#include "files/file_store.h"
#include "language/language.h"
#include "link/knowledge_file.h"
#include "link/port_file.h"
#include "link/qt_serial_port.h"
#include "platform/plain_settings.h"
#include "ui/icons.h"
#include "ui/message_dialogs.h"

namespace {

/// \param language  a code of Languages(), empty for the one of the system
void Introduce(const QString& language)
{
    QCoreApplication::setOrganizationName(QStringLiteral("Tervan"));
    QCoreApplication::setApplicationName(QStringLiteral("Tervan RQ-M5 Clone Utility"));
    QCoreApplication::setApplicationVersion(QStringLiteral(RQM5_VERSION));
    rqm5::Language::OfProgram().Use(language);
}

/// What Qt says of its options, which its own translations do not have in each of our languages.
[[maybe_unused]] constexpr const char* kOptionTexts[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays help on commandline options."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays help including Qt specific options."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays version information."),
};

void Describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "Reads, edits and writes the memory of an RQ-M5 receiver."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QCoreApplication::translate("main", "Clone file to open."),
                                 QStringLiteral("[FILE]"));
}

bool Asks(int argc, char** argv, std::initializer_list<std::string_view> words)
{
    for (int i = 1; i < argc && std::string_view(argv[i]) != "--"; ++i)
        if (std::ranges::find(words, argv[i]) != words.end())
            return true;
    return false;
}

/// Help and version are for the terminal, where there may be no display.
void AnswerAtTheTerminal(int argc, char** argv)
{
    const bool wantsVersion = Asks(argc, argv, {"-v", "--version"});
    if (!wantsVersion && !Asks(argc, argv, {"-h", "-?", "--help"}))
        return;
    const QCoreApplication application(argc, argv);
    Introduce(rqm5::TerminalLanguage());
    QCommandLineParser parser;
    Describe(parser);
    if (wantsVersion)
        parser.showVersion();
    parser.showHelp();
}

QStringList FileArguments(const QApplication& application)
{
    QCommandLineParser parser;
    Describe(parser);
    parser.process(application);
    return parser.positionalArguments();
}

}  // namespace

int main(int argc, char** argv)
{
    rqm5::TurnFileSizeLimitIntoError();
    rqm5::PassOverSettingsThatAreNoFiles();
    AnswerAtTheTerminal(argc, argv);
    QApplication application(argc, argv);
    Introduce(rqm5::ChosenLanguage());
    QApplication::setDesktopFileName(QStringLiteral("rq-m5-clone"));
    QApplication::setWindowIcon(rqm5::ProgramIcon());

    rqm5::QtSerialPort port{QString()};
    rqm5::MessageDialogs dialogs;
    rqm5::StartOptions options;
    options.commandFile = rqm5::CommandFile(rqm5::CommandLineText(FileArguments(application)));
    options.portFile = rqm5::PortFilePath(QApplication::applicationDirPath());
    options.stateFolder = rqm5::StateFolder();
    options.cacheFolder = rqm5::CacheFolder();
    options.useDevice = [&port](const QString& device) { port.SetDevice(device); };
    options.showProgress = rqm5::ShowProgressOnDesktop;
    options.notify = rqm5::NotifyOnDesktop;
    rqm5::ProgramEnd end;
    const auto window = rqm5::StartUp(port, dialogs, options);
    return end.Exec(*window);
}
