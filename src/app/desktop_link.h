#pragma once

#include <QString>

namespace rqm5 {

/// Shows how far something is on the program's icon in the taskbar or dock, from 0 to 1; a negative number
/// takes it away. Desktops that know nothing of it show nothing.
void ShowProgressOnDesktop(double fraction);

/// A notification of the desktop, or of the area for small icons where there is no desktop to ask; nothing
/// where there is neither.
void NotifyOnDesktop(const QString& text);

}  // namespace rqm5
