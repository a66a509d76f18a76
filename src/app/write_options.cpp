#include "app/write_options.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include "memory/bank_layout.h"
#include "ui/settings_store.h"

namespace rqm5 {
namespace {

const QString kBackup = QStringLiteral("Write/Backup");
const QString kVerify = QStringLiteral("Write/Verify");
const QString kOffered = QStringLiteral("Write/Offered");
const QString kFolder = QStringLiteral("Write/BackupFolder");

QString UsualFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
        .filePath(QStringLiteral("RQ-M5 backups"));
}

}  // namespace

QString NameOfScope(const TransferScope& scope)
{
    if (scope.settings)
        return scope.memory ? QStringLiteral("all") : QStringLiteral("settings");
    if (!scope.memory)
        return QStringLiteral("banks");
    return QStringLiteral("memory ") +
           QString::fromStdString(SelectorText(scope.selector).English()).toLower();
}

WriteOptions LoadWriteOptions()
{
    const QSettings store = SettingsStore();
    const QString folder = store.value(kFolder).toString();
    return {store.value(kBackup, false).toBool(), store.value(kVerify, false).toBool(),
            folder.isEmpty() ? UsualFolder() : folder};
}

void SaveWriteOptions(const WriteOptions& options)
{
    QSettings store = SettingsStore();
    store.setValue(kBackup, options.keepsBackup);
    store.setValue(kVerify, options.verifies);
    store.setValue(kFolder, options.backupFolder);
}

bool TakeWriteOffer()
{
    QSettings store = SettingsStore();
    if (store.contains(kBackup) || store.contains(kVerify) || store.contains(kOffered))
        return false;
    store.setValue(kOffered, true);
    return true;
}

QString NewBackupPath(const QString& folder, const TransferScope& scope, const QDateTime& now)
{
    return NewBackupNamed(folder, NameOfScope(scope), now);
}

QString NewBackupNamed(const QString& folder, const QString& what, const QDateTime& now)
{
    const QString name =
        QStringLiteral("RQ-M5 %1 %2").arg(now.toString(QStringLiteral("yyyy-MM-dd HH-mm-ss")), what);
    QString path = QDir(folder).filePath(name + QStringLiteral(".RQ5"));
    for (int copy = 2; QFileInfo::exists(path); ++copy)
        path = QDir(folder).filePath(QStringLiteral("%1 (%2).RQ5").arg(name).arg(copy));
    return path;
}

}  // namespace rqm5
