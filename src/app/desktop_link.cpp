#include "app/desktop_link.h"

#include <QCoreApplication>
#include <QFile>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QVariantMap>

#include "ui/icons.h"

#ifdef RQM5_HAS_DBUS
#include <QDBusConnection>
#include <QDBusMessage>
#endif

namespace rqm5 {
namespace {

#ifdef RQM5_HAS_DBUS

constexpr int kDesktopDecides = -1;

/// Asking for a bus that is not there would start one.
bool HasBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

/// Nobody waits for an answer, so that a desktop that hangs does not hold the program up.
bool Send(const QDBusMessage& message)
{
    return HasBus() && QDBusConnection::sessionBus().send(message);
}

QDBusMessage NotificationOf(const QString& text)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    const QString program = QStringLiteral("rq-m5-clone");
    message << QCoreApplication::applicationName() << uint{0} << program
            << QCoreApplication::applicationName() << text.toHtmlEscaped() << QStringList()
            << QVariantMap{{QStringLiteral("desktop-entry"), program}} << kDesktopDecides;
    return message;
}

#endif

void ShowInTray(const QString& text)
{
    if (!QSystemTrayIcon::isSystemTrayAvailable() || !QSystemTrayIcon::supportsMessages())
        return;
    constexpr std::chrono::seconds kShown{10};
    auto* icon = new QSystemTrayIcon(ProgramIcon(), QCoreApplication::instance());
    icon->show();
    icon->showMessage(QCoreApplication::applicationName(), text, ProgramIcon());
    QTimer::singleShot(kShown, icon, &QObject::deleteLater);
}

}  // namespace

void ShowProgressOnDesktop([[maybe_unused]] double fraction)
{
#ifdef RQM5_HAS_DBUS
    QDBusMessage message = QDBusMessage::createSignal(QStringLiteral("/com/canonical/unity/launcherentry/1"),
                                                      QStringLiteral("com.canonical.Unity.LauncherEntry"),
                                                      QStringLiteral("Update"));
    message << QStringLiteral("application://rq-m5-clone.desktop")
            << QVariantMap{{QStringLiteral("progress"), qMax(fraction, 0.0)},
                           {QStringLiteral("progress-visible"), fraction >= 0}};
    Send(message);
#endif
}

void NotifyOnDesktop(const QString& text)
{
#ifdef RQM5_HAS_DBUS
    if (Send(NotificationOf(text)))
        return;
#endif
    ShowInTray(text);
}

}  // namespace rqm5
