#include "ui/follow_focus.h"

#include <QApplication>

namespace rqm5 {

void FollowFocus(QScrollArea& area)
{
    QObject::connect(qApp, &QApplication::focusChanged, &area, [&area](QWidget*, QWidget* now) {
        // What the mouse presses must not move away under it.
        const bool isPressed = QApplication::mouseButtons() != Qt::NoButton;
        if (!isPressed && now != nullptr && area.widget() != nullptr && area.widget()->isAncestorOf(now))
            area.ensureWidgetVisible(now);
    });
}

}  // namespace rqm5
