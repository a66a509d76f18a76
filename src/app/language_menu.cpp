#include "app/language_menu.h"

#include "language/language.h"
#include "ui/form_texts.h"
#include "ui/settings_store.h"

namespace rqm5 {
namespace {

const QString kKey = QStringLiteral("Language");

}  // namespace

QString ChosenLanguage()
{
    return SettingsStore().value(kKey).toString();
}

LanguageMenu::LanguageMenu(QMenu& mnuView, QObject* parent) : QObject(parent)
{
    mnuView.addSeparator();
    QMenu* menu = mnuView.addMenu(Designed(QT_TRANSLATE_NOOP("rqm5::frmMain", "&Language")));
    menu->setObjectName(QStringLiteral("mnuViewLanguage"));
    menu->menuAction()->setStatusTip(
        Designed(QT_TRANSLATE_NOOP("rqm5::frmMain", "Choose the language of every window")));
    choices_ = new QActionGroup(menu);
    AddChoice(*menu, QStringLiteral("mnuLanguageSystem"),
              Designed(QT_TRANSLATE_NOOP("rqm5::frmMain", "&System")), {});
    menu->addSeparator();
    for (const LanguageName& language : Languages()) {
        const QString code = QLatin1String(language.code);
        AddChoice(*menu, QStringLiteral("mnuLanguage_") + code, QString::fromUtf8(language.name), code);
    }
}

void LanguageMenu::AddChoice(QMenu& menu, const QString& name, const QString& text, const QString& code)
{
    QAction* choice = menu.addAction(text);
    choice->setObjectName(name);
    choice->setCheckable(true);
    choices_->addAction(choice);
    choice->setChecked(code == ChosenLanguage());
    connect(choice, &QAction::triggered, this, [code] {
        SettingsStore().setValue(kKey, code);
        Language::OfProgram().Use(code);
    });
}

}  // namespace rqm5
