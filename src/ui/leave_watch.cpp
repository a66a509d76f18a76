#include "ui/leave_watch.h"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>

namespace rqm5 {

LeaveWatch::LeaveWatch(QLineEdit& box) : QObject(&box)
{
    box.installEventFilter(this);
}

bool LeaveWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            emit Left();
    }
    return QObject::eventFilter(watched, event);
}

void ReleasePressedButtons(QWidget& window)
{
    QTimer::singleShot(0, &window, [&window] {
        for (QAbstractButton* button : window.findChildren<QAbstractButton*>())
            button->setDown(false);
    });
}

}  // namespace rqm5
