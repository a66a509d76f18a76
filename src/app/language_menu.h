#pragma once

#include <QActionGroup>
#include <QMenu>
#include <QObject>

namespace rqm5 {

/// The language that the user chose: a code of Languages(), empty for the system's.
QString ChosenLanguage();

/// View > Language: the system's language, and each that the program speaks, by its own name.
class LanguageMenu : public QObject
{
    Q_OBJECT

  public:
    LanguageMenu(QMenu& mnuView, QObject* parent);

  private:
    void AddChoice(QMenu& menu, const QString& name, const QString& text, const QString& code);

    QActionGroup* choices_ = nullptr;
};

}  // namespace rqm5
