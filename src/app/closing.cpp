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

Closing::Closing(Pages& pages, FileCommands& files, PortCommands& ports, Recovery& recovery,
                 TransferCommands& transfers, QMainWindow& window)
    : QObject(&window),
      pages_(pages),
      files_(files),
      ports_(ports),
      recovery_(recovery),
      transfers_(transfers),
      window_(window)
{
    connect(&transfers, &TransferCommands::Ended, this, [this] {
        if (std::exchange(isClosePending_, false))
            QMetaObject::invokeMethod(&window_, &QWidget::close, Qt::QueuedConnection);
    });
}

bool Closing::MayClose()
{
    if (transfers_.IsRunning()) {
        // The transfer ends first; the question comes when its last event has been handled.
        isClosePending_ = true;
        transfers_.Cancel();
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
    recovery_.KeepNow();
    ports_.Save();
    transfers_.Cancel();
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
    return pages_.Banks().CommitPending() && files_.MayLoseChanges();
}

void Closing::Form_Unload()
{
    recovery_.End();
    ports_.Save();
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
