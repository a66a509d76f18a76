#pragma once

#include <QPalette>

namespace rqm5 {

/// How well a text stands out from its ground, 1 (not at all) to 21 (black on white), as the Web Content
/// Accessibility Guidelines count it.
double Contrast(const QColor& text, const QColor& ground);

/// The colour for the text of something that is off: the system's grey, made darker or lighter until it can
/// be read.
/// \param ground  the colour role that it stands on: Base, or Highlight when it is selected
QColor OffColour(const QPalette& palette, QPalette::ColorRole ground,
                 QPalette::ColorGroup group = QPalette::Active);

/// Gives links and the hints inside empty boxes a colour that can be read, where the desktop's theme has
/// none: dark themes often leave links blue and hints black.
void KeepTextsReadable();

}  // namespace rqm5
