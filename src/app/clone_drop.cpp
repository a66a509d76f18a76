#include "app/clone_drop.h"

#include <QApplication>
#include <QDropEvent>

#include "memory/table_clipboard.h"

namespace rqm5 {
namespace {

bool IsDragOrDrop(const QEvent& event)
{
    return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove ||
           event.type() == QEvent::Drop;
}

}  // namespace

CloneDrop::CloneDrop(QWidget& window, const QAction& open) : QObject(&window), window_(window), open_(open)
{
    window.setAcceptDrops(true);
    QApplication::instance()->installEventFilter(this);
}

bool CloneDrop::CanOpen() const
{
    return QApplication::activeModalWidget() == nullptr && open_.isEnabled();
}

bool CloneDrop::eventFilter(QObject* watched, QEvent* event)
{
    if (!IsDragOrDrop(*event))
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    auto& drop = static_cast<QDropEvent&>(*event);
    const QString path = CloneFileOf(*drop.mimeData());
    if (widget == nullptr || widget->window() != &window_ || path.isEmpty())
        return false;
    drop.setDropAction(Qt::CopyAction);
    drop.setAccepted(CanOpen());
    // The question about unsaved changes comes when the other program's drag has ended.
    if (event->type() == QEvent::Drop && CanOpen())
        QMetaObject::invokeMethod(
            this, [this, path] { emit Dropped(path); }, Qt::QueuedConnection);
    return true;
}

}  // namespace rqm5
