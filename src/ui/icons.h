#pragma once

#include <QIcon>

namespace rqm5 {

/// The icon of a menu item: the desktop theme's, else our own; empty for an item that has none.
QIcon IconOf(const char* itemName);

/// The program's own icon, in every size.
QIcon ProgramIcon();

}  // namespace rqm5
