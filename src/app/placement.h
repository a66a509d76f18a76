#pragma once

#include <QSettings>
#include <QString>
#include <QWidget>

namespace rqm5 {

/// Pixels as twips, 1440 to the inch, printed as the single-precision number they are kept as.
QString TwipsText(int pixels, int dotsPerInch);

/// Keeps where a window stands. Nothing reads it back: the window's place is the window manager's choice
/// at every start, and other tools may look the last one up here.
void SavePlacement(const QWidget& window, QSettings& settings);

}  // namespace rqm5
