#pragma once

#include <QFont>

namespace rqm5 {

/// The font of tables and print in the size of base: "ＭＳ ゴシック" where it is installed, else a
/// fixed-pitch font with Latin and Japanese letters, else the system's fixed-pitch font.
QFont FixedPitchFont(const QFont& base);

}  // namespace rqm5
