#include <QCoreApplication>
#include <optional>
#include <string>
#include <vector>

#include "cli/program.h"
#include "cli/streams.h"
#include "files/file_store.h"
#include "language/language.h"
#include "platform/plain_settings.h"

int main(int argc, char* argv[])
{
    rqm5::TurnFileSizeLimitIntoError();
    rqm5::PassOverSettingsThatAreNoFiles();
    // Translations need an application, and English need not pay for one.
    std::optional<QCoreApplication> application;
    if (const QString language = rqm5::TerminalLanguage(); language != QLatin1String("en")) {
        application.emplace(argc, argv);
        rqm5::Language::OfProgram().Use(language);
    }
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    rqm5::Console console = rqm5::StandardConsole();
    return rqm5::Finish(rqm5::RunProgram(words, console), console);
}
