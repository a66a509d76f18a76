#pragma once

#include <QDateTime>
#include <QString>
#include <optional>
#include <vector>

#include "link/transfer_scope.h"
#include "memory/comparison.h"

namespace rqm5 {

/// A backup, as far as its name tells.
struct BackupFile
{
    QString path;
    QDateTime time;
    TransferScope scope;  ///< of the write that it was kept for
};

/// What a file name says that is one of NewBackupPath; nothing for any other file.
std::optional<BackupFile> BackupOfPath(const QString& path);

/// The backups in a folder, the newest first. Other files are none of ours.
std::vector<BackupFile> BackupsIn(const QString& folder);

/// What to write to go back to a backup. One of a single bank holds all channels when the receiver had other
/// bank sizes than the window.
TransferScope ScopeHeld(const BackupFile& backup, const CloneImage& image);

/// What can be compared with it.
ComparedParts PartsHeld(const TransferScope& scope, const CloneImage& image);

/// How many backups are kept; 0 for no limit.
struct BackupLimit
{
    int most = 0;
    int days = 0;
};

BackupLimit LoadBackupLimit();
void SaveBackupLimit(const BackupLimit& limit);

/// The backups that a limit leaves no room for: the oldest.
std::vector<BackupFile> BeyondLimit(const std::vector<BackupFile>& newestFirst, const BackupLimit& limit,
                                    const QDateTime& now);

/// Deletes what the limit that the user has set leaves no room for in the folder of a new backup; that one
/// stays. \return how many
int DeleteBeyondLimit(const QString& justKept);

}  // namespace rqm5
