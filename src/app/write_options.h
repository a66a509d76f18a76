#pragma once

#include <QDateTime>
#include <QString>

#include "link/transfer_scope.h"

namespace rqm5 {

/// What a person wants done before and after each write; remembered from run to run.
struct WriteOptions
{
    bool keepsBackup = false;
    bool verifies = false;
    QString backupFolder;  ///< never empty
};

WriteOptions LoadWriteOptions();
void SaveWriteOptions(const WriteOptions& options);

/// What a backup of a scope holds, as it stands in its name: "all", "settings", "banks", "memory bank 3".
QString NameOfScope(const TransferScope& scope);

/// True once, to an owner who has never said whether he wants a backup and a verification.
bool TakeWriteOffer();

/// The path of a new backup: date, time and what it holds are in its name. No file of that name exists.
QString NewBackupPath(const QString& folder, const TransferScope& scope, const QDateTime& now);
QString NewBackupNamed(const QString& folder, const QString& what, const QDateTime& now);

}  // namespace rqm5
