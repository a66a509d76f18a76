#include "app/closing.h"

#include <QApplication>
#include <QEvent>
#include <utility>

#include "app/file_commands.h"
#include "app/pages.h"
#include "app/placement.h"
#include "app/port_commands.h"
#include "app/recovery.h"
#include "app/transfer_commands.h"
#include "ui/settings_store.h"

namespace rqm5 {

Closing::Closing(const WindowParts& parts, QMainWindow& window)
    : QObject(&window), parts_(parts), window_(window)
{
    connect(parts.transfers, &TransferCommands::Ended, this, [this] {
        if (std::exchange(isClosePending_, false))
            QMetaObject::invokeMethod(&window_, &QWidget::close, Qt::QueuedConnection);
    });
}

bool Closing::MayClose()
{
    if (parts_.transfers->IsRunning()) {
        // The transfer ends first; the question comes when its last event has been handled.
        isClosePending_ = true;
        parts_.transfers->Cancel();
        return false;
    }
    if (isSessionEnding_) {
        KeepWork();
        return true;
    }
    if (!Form_QueryUnload())
        return false;
    Form_Unload();
    return true;
}

void Closing::KeepWork()
{
    parts_.recovery->KeepNow();
    parts_.ports->Save();
    parts_.transfers->Cancel();
}

void Closing::EndSession()
{
    KeepWork();
    isSessionEnding_ = true;
    qApp->installEventFilter(this);
}

/// Whoever presses a key or a button goes on working.
bool Closing::eventFilter(QObject* /*watched*/, QEvent* event)
{
    const bool isInput = event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress;
    if (isInput && event->spontaneous()) {
        isSessionEnding_ = false;
        qApp->removeEventFilter(this);
    }
    return false;
}

bool Closing::Form_QueryUnload()
{
    return parts_.pages->Banks().CommitPending() && parts_.files->MayLoseChanges();
}

void Closing::Form_Unload()
{
    parts_.recovery->End();
    parts_.ports->Save();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window)
        if (*window != &window_ && (*window)->isVisible())
            (*window)->close();
    if (window_.isMinimized())
        return;
    QSettings settings = SettingsStore();
    SavePlacement(window_, settings);
}

}  // namespace rqm5
