#include "ui/history_key.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace rqm5 {

HistoryKey::HistoryKey(QWidget& window) : QObject(&window), window_(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool HistoryKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto* box = qobject_cast<QLineEdit*>(watched);
    if (box == nullptr || box->window() != &window_)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    // Ctrl+Y is a key of Redo in the menu whatever the desktop takes for one.
    const bool isRedo = key->matches(QKeySequence::Redo) ||
                        (key->key() == Qt::Key_Y && key->modifiers() == Qt::ControlModifier);
    const bool hasTyping = box->isUndoAvailable() || box->isRedoAvailable();
    const bool isForHistory = (isRedo || key->matches(QKeySequence::Undo)) && !hasTyping;
    if (isForHistory)
        event->ignore();
    return isForHistory;
}

}  // namespace rqm5
