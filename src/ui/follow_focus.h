#pragma once

#include <QScrollArea>

namespace rqm5 {

/// Scrolls an area, from now on, to whatever in it gets the focus by key or program.
void FollowFocus(QScrollArea& area);

}  // namespace rqm5
