#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>

#include "platform/plain_settings.h"
#include "platform/user_folders.h"

namespace rqm5 {

QString StateFolder()
{
    const QString set = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base =
        QDir::isAbsolutePath(set) ? set : QDir::home().filePath(QStringLiteral(".local/state"));
    return QDir(base).filePath(QStringLiteral("rq-m5-clone"));
}

void PassOverSettingsThatAreNoFiles()
{
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
}

}  // namespace rqm5
