#pragma once

#include <QString>
#include <QWidget>

namespace rqm5 {

/// A text of a control as it is designed, in English; SetFormTexts puts its translation in place.
/// \param text  in QT_TR_NOOP or QT_TRANSLATE_NOOP
inline QString Designed(const char* text)
{
    return QString::fromUtf8(text);
}

/// Puts the translation of every designed text in place: the form's caption, its labels, buttons, group
/// titles, menus, tabs, placeholders and hints, for any window that calls it.
///
/// A text is looked up in the contexts of its control's class and of those that hold it. A lookup that
/// fails changes nothing, so without a translation every text stays as designed; a text whose translation
/// was taken away gets its designed text back. Call it again on QEvent::LanguageChange.
void SetFormTexts(QWidget& form);

}  // namespace rqm5
