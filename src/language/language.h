#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QString>
#include <QTranslator>
#include <memory>

namespace rqm5 {

struct LanguageName
{
    const char* code;  ///< ISO 639-1
    const char* name;  ///< in the language itself, so that whoever reads no other finds it
};

/// English, whose texts are the sources, and every language that they are translated to.
const QList<LanguageName>& Languages();

/// The first of the user's languages that there is a translation to; English for the locales C and POSIX.
QString SystemLanguage();

/// The same for what is written to a terminal, as UTF-8; English where the terminal has other characters.
QString TerminalLanguage();

/// The language that the program speaks: its own translations, and Qt's for buttons and system dialogs.
class Language : public QTranslator
{
    Q_OBJECT

  public:
    /// The one of the running application, which it is installed in. Needs an application.
    static Language& OfProgram();

    /// Says everything in this language from now on, and tells every window so.
    /// \param code  of Languages(); empty for the system's
    void Use(const QString& code);

    /// What is spoken: a code of Languages().
    QString Code() const { return code_; }

    /// As the system writes times where it speaks this language, too, else as the language does.
    QString ShortTime(const QDateTime& time) const;

    /// The English text that was shown as this one, for what is found by it; the text itself when none was.
    QString SourceOf(const QString& shown) const;

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int count) const override;

  signals:
    void Changed();  ///< for what is no widget; widgets get an event

  private:
    explicit Language(QObject* parent);

    QString code_;
    /// Guards what follows: files are written in threads of their own, and Qt words their faults there.
    mutable QMutex mutex_;
    mutable QHash<QString, QString> sources_;  ///< by what was shown in their place
    std::unique_ptr<QTranslator> own_;
    std::unique_ptr<QTranslator> toolkit_;
};

}  // namespace rqm5
