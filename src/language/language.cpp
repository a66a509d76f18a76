#include "language/language.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QOperatingSystemVersion>
#include <QPointer>
#include <QRegularExpression>
#include <algorithm>

namespace rqm5 {
namespace {

constexpr char kEnglish[] = "en";

/// What the environment says of the language of texts (LC_MESSAGES) or their characters (LC_CTYPE), in the
/// order in which the system looks.
QByteArray EnvironmentLocale(const char* category)
{
    for (const char* name : {"LC_ALL", category, "LANG"})
        if (const QByteArray value = qgetenv(name); !value.isEmpty())
            return value;
    return {};
}

bool IsPlainLocale(const QByteArray& name)
{
    return name == "C" || name == "POSIX" || name.startsWith("C.");
}

/// The texts of a file; empty, so that they are in English, when there is no such file.
std::unique_ptr<QTranslator> Catalog(const QString& name, const QString& code, const QString& folder)
{
    auto catalog = std::make_unique<QTranslator>();
    [[maybe_unused]] const bool isThere = catalog->load(name + QLatin1Char('_') + code, folder);
    return catalog;
}

bool IsKnown(const QString& code)
{
    return std::ranges::any_of(Languages(),
                               [&](const LanguageName& known) { return QLatin1String(known.code) == code; });
}

}  // namespace

const QList<LanguageName>& Languages()
{
    static const QList<LanguageName> languages = {
        {kEnglish, "English"}, {"ja", "日本語"}, {"de", "Deutsch"}, {"fr", "Français"}, {"es", "Español"}};
    return languages;
}

QString SystemLanguage()
{
    const QByteArray locale = EnvironmentLocale("LC_MESSAGES");
    // Windows and macOS have settings for it where the environment says nothing; others mean C.
    const bool hasSettings = QOperatingSystemVersion::currentType() != QOperatingSystemVersion::Unknown;
    if (IsPlainLocale(locale) || (locale.isEmpty() && !hasSettings))
        return QLatin1String(kEnglish);
    QStringList names = locale.isEmpty() ? QLocale::system().uiLanguages()
                                         : qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'));
    names << QString::fromLocal8Bit(locale);
    static const QRegularExpression behind(QStringLiteral("[-_.@].*"));
    for (QString& name : names)
        if (const QString code = name.remove(behind); IsKnown(code))
            return code;
    return QLatin1String(kEnglish);
}

QString TerminalLanguage()
{
    // "de_DE.UTF-8@euro": the character set stands between dot and at sign.
    const QByteArray locale = EnvironmentLocale("LC_CTYPE");
    const qsizetype dot = locale.indexOf('.');
    const QByteArray characters = locale.mid(dot + 1).split('@').first().toLower().replace("-", "");
    const bool isOther = dot < 0 ? IsPlainLocale(locale) : characters != "utf8";
    return isOther ? QLatin1String(kEnglish) : SystemLanguage();
}

Language::Language(QObject* parent)
    : QTranslator(parent),
      code_(QLatin1String(kEnglish)),
      own_(std::make_unique<QTranslator>()),
      toolkit_(std::make_unique<QTranslator>())
{
}

Language& Language::OfProgram()
{
    // Belongs to the application: tests make more than one.
    static QPointer<Language> language;
    if (!language) {
        language = new Language(QCoreApplication::instance());
        QCoreApplication::installTranslator(language);
    }
    return *language;
}

void Language::Use(const QString& code)
{
    const QString wanted = code.isEmpty() || !IsKnown(code) ? SystemLanguage() : code;
    if (wanted == code_)
        return;
    code_ = wanted;
    auto own = Catalog(QStringLiteral("rq-m5"), wanted, QStringLiteral(":/translations"));
    auto toolkit =
        Catalog(QStringLiteral("qtbase"), wanted, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    {
        const QMutexLocker lock(&mutex_);
        own_.swap(own);  // the old ones end behind the lock: their end waits for whoever is translating
        toolkit_.swap(toolkit);
        sources_.clear();
    }
    emit Changed();
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
}

QString Language::translate(const char* context, const char* source, const char* disambiguation,
                            int count) const
{
    const QMutexLocker lock(&mutex_);
    const QString own = own_->translate(context, source, disambiguation, count);
    if (own.isNull())
        return toolkit_->translate(context, source, disambiguation, count);
    sources_.insert(own, QString::fromUtf8(source));
    return own;
}

QString Language::ShortTime(const QDateTime& time) const
{
    const QLocale system;
    const QLocale own(code_);
    return (system.language() == own.language() ? system : own).toString(time, QLocale::ShortFormat);
}

QString Language::SourceOf(const QString& shown) const
{
    const QMutexLocker lock(&mutex_);
    return sources_.value(shown, shown);
}

}  // namespace rqm5
