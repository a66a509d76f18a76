#include "files/plain_settings.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>

namespace rqm5 {

void PassOverSettingsThatAreNoFiles()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    const QString names[] = {QStringLiteral("Tervan/Tervan RQ-M5 Clone Utility.conf"),
                             QStringLiteral("Tervan.conf")};
    const bool isOdd = std::ranges::any_of(names, [&folder](const QString& name) {
        const QFileInfo file(folder.filePath(name));
        return file.exists() && !file.isFile();
    });
    // Nothing can be opened or made below a device.
    if (isOdd)
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
#endif
}

}  // namespace rqm5
