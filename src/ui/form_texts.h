#pragma once

#include <QWidget>

namespace rqm5 {

/// Puts the translation of every designed text in place: the form's caption, its labels, buttons, group
/// titles, menus, tabs and tooltips, for any window that calls it.
///
/// A text is looked up in the contexts of its control's class and of those that hold it. A lookup that
/// fails changes nothing, so without a translation every text stays as designed; a text whose translation
/// was taken away gets its designed text back. Call it again on QEvent::LanguageChange.
void SetFormTexts(QWidget& form);

}  // namespace rqm5
