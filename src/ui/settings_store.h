#pragma once

#include <QSettings>

namespace rqm5 {

/// What the program remembers for a user from run to run.
inline QSettings SettingsStore()
{
    return QSettings(QStringLiteral("Tervan"), QStringLiteral("Tervan RQ-M5 Clone Utility"));
}

}  // namespace rqm5
