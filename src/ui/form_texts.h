#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

namespace rqm5 {

/// A text of a control as it is designed, in English; SetFormTexts puts its translation in place.
/// \param text  in QT_TR_NOOP or QT_TRANSLATE_NOOP
inline QString Designed(const char* text)
{
    return QString::fromUtf8(text);
}

/// A text without the mark of its key, and without the key itself where that stands behind it in brackets, as
/// in languages whose letters are not those of the keyboard.
QString WithoutMnemonic(const QString& text);

/// Names a context for the texts of a control and of all that it holds, beside their classes: that of tables
/// which stand outside of any class.
void SetTextContext(QObject& control, const char* context);

/// Puts the translation of every designed text in place: the form's caption, its labels, buttons, group
/// titles, menus, tabs, placeholders, titles of trees and hints, for any window that calls it.
///
/// A text is looked up in the contexts of its control's class and of those that hold it. A lookup that
/// fails changes nothing, so without a translation every text stays as designed; a text whose translation
/// was taken away gets its designed text back. Call it again on QEvent::LanguageChange.
void SetFormTexts(QWidget& form);

}  // namespace rqm5
