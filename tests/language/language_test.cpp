#include "language/language.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <map>

#include "language/translated.h"

namespace rqm5 {
namespace {

/// Sets variables of the environment, and brings back those that were.
class Environment
{
  public:
    explicit Environment(const std::map<QByteArray, QByteArray>& wanted)
    {
        for (const char* name : {"LC_ALL", "LC_MESSAGES", "LC_CTYPE", "LANG", "LANGUAGE"}) {
            before_[name] = qgetenv(name);
            const auto found = wanted.find(name);
            Set(name, found != wanted.end() ? found->second : QByteArray());
        }
    }
    ~Environment()
    {
        for (const auto& [name, value] : before_)
            Set(name, value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

  private:
    static void Set(const QByteArray& name, const QByteArray& value)
    {
        value.isEmpty() ? qunsetenv(name) : qputenv(name, value);
    }

    std::map<QByteArray, QByteArray> before_;
};

TEST(SystemLanguage, IsWhatTheEnvironmentAsksForAndWeHave)
{
    const std::pair<std::map<QByteArray, QByteArray>, const char*> cases[] = {
        {{}, "en"},
        {{{"LANGUAGE", "de"}}, "en"},
        {{{"LANG", "de_DE.UTF-8"}}, "de"},
        {{{"LANG", "ja_JP.UTF-8"}, {"LC_MESSAGES", "fr_FR.UTF-8"}}, "fr"},
        {{{"LANG", "de_DE.UTF-8"}, {"LC_ALL", "es_MX.UTF-8"}}, "es"},
        {{{"LANG", "de_DE.UTF-8"}, {"LC_ALL", "C"}}, "en"},
        {{{"LC_ALL", "C.UTF-8"}, {"LANGUAGE", "de"}}, "en"},
        {{{"LANG", "de_DE.UTF-8"}, {"LC_ALL", "POSIX"}}, "en"},
        {{{"LANG", "pl_PL.UTF-8"}}, "en"},
        {{{"LANG", "pl_PL.UTF-8"}, {"LANGUAGE", "pl:ja:de"}}, "ja"},
        {{{"LANG", "en_GB.UTF-8"}}, "en"},
    };
    for (const auto& [variables, code] : cases) {
        const Environment environment(variables);
        EXPECT_EQ(SystemLanguage().toStdString(), code);
    }
}

TEST(TerminalLanguage, IsEnglishWhereOtherCharactersCannotBeShown)
{
    const std::pair<std::map<QByteArray, QByteArray>, const char*> cases[] = {
        {{{"LANG", "de_DE.UTF-8"}}, "de"},
        {{{"LANG", "de_DE.utf8@euro"}}, "de"},
        {{{"LC_ALL", "ja_JP.eucJP"}}, "en"},
        {{{"LANG", "de_DE.UTF-8"}, {"LC_CTYPE", "de_DE.ISO-8859-1"}}, "en"},
        {{{"LANG", "de_DE.UTF-8"}, {"LC_CTYPE", "C"}}, "en"},
        {{{"LANG", "de_DE.UTF-8"}, {"LC_CTYPE", "C.UTF-8"}}, "de"},
    };
    for (const auto& [variables, code] : cases) {
        const Environment environment(variables);
        EXPECT_EQ(TerminalLanguage().toStdString(), code);
    }
}

TEST(Language, ChangesWhatIsSaidAndTellsSoOnce)
{
    Language& language = Language::OfProgram();
    language.Use(QStringLiteral("en"));
    int changes = 0;
    const auto counter =
        QObject::connect(&language, &Language::Changed, &language, [&changes] { ++changes; });
    const Message message(MESSAGE("memory row %1 (in no bank)"), {999});
    for (const LanguageName& name : Languages()) {
        language.Use(QLatin1String(name.code));
        language.Use(QLatin1String(name.code));
        EXPECT_EQ(language.Code().toStdString(), name.code);
        EXPECT_EQ(Said(message) == "memory row 999 (in no bank)", name.code == std::string("en"))
            << Said(message);
        EXPECT_NE(Said(message).find("999"), std::string::npos);
        EXPECT_EQ(message.English(), "memory row 999 (in no bank)");
    }
    EXPECT_EQ(changes, Languages().size() - 1);
    QObject::disconnect(counter);
    language.Use(QStringLiteral("xx"));
    EXPECT_EQ(language.Code(), SystemLanguage()) << "a code that nobody knows";
    language.Use(QStringLiteral("en"));
}

}  // namespace
}  // namespace rqm5
