#include "app/backup_list.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <algorithm>

#include "app/write_options.h"
#include "memory/bank_layout.h"
#include "ui/settings_store.h"

namespace rqm5 {
namespace {

const QString kMost = QStringLiteral("Backups/Most");
const QString kDays = QStringLiteral("Backups/Days");

/// The reverse of the end of a backup's name.
std::optional<TransferScope> ScopeOfName(const QString& name)
{
    // Before it writes what has changed, the program knows all of the receiver.
    if (name == QLatin1String("changes"))
        return TransferScope();
    std::vector<TransferScope> scopes = {
        {}, {.memory = false}, {.settings = false, .memory = false, .banks = true}};
    for (int selector = 0; selector < kSelectorEntries; ++selector)
        scopes.push_back({.settings = false, .selector = selector});
    for (const TransferScope& scope : scopes)
        if (NameOfScope(scope) == name)
            return scope;
    return std::nullopt;
}

/// True when another row than these holds a channel.
bool HasOthers(const CloneImage& image, RowRange rows)
{
    for (int row = 0; row < kRadioRows; ++row)
        if (!rows.Contains(row) && image.MemData(row).HasChannel())
            return true;
    return false;
}

}  // namespace

std::optional<BackupFile> BackupOfPath(const QString& path)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^RQ-M5 (\d{4}-\d{2}-\d{2} \d{2}-\d{2}-\d{2}) (.+?)(?: \(\d+\))?\.RQ5$)"));
    const QRegularExpressionMatch match = pattern.match(QFileInfo(path).fileName());
    const QDateTime time = QDateTime::fromString(match.captured(1), QStringLiteral("yyyy-MM-dd HH-mm-ss"));
    const auto scope = ScopeOfName(match.captured(2));
    if (!match.hasMatch() || !time.isValid() || !scope)
        return std::nullopt;
    return BackupFile{path, time, *scope};
}

std::vector<BackupFile> BackupsIn(const QString& folder)
{
    std::vector<BackupFile> backups;
    for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("RQ-M5 *.RQ5")}, QDir::Files))
        if (auto backup = BackupOfPath(file.absoluteFilePath()))
            backups.push_back(std::move(*backup));
    std::ranges::stable_sort(backups, std::ranges::greater(), &BackupFile::time);
    return backups;
}

TransferScope ScopeHeld(const BackupFile& backup, const CloneImage& image)
{
    TransferScope scope = backup.scope;
    if (!scope.settings && scope.memory && HasOthers(image, TransferRows(image, scope.selector)))
        scope.selector = kSelectAll;
    return scope;
}

ComparedParts PartsHeld(const TransferScope& scope, const CloneImage& image)
{
    return {.rows = scope.memory ? TransferRows(image, scope.selector) : RowRange(),
            .settings = scope.settings,
            .banks = scope.memory || scope.banks,
            .notes = false};
}

BackupLimit LoadBackupLimit()
{
    const QSettings store = SettingsStore();
    return {std::max(0, store.value(kMost).toInt()), std::max(0, store.value(kDays).toInt())};
}

void SaveBackupLimit(const BackupLimit& limit)
{
    QSettings store = SettingsStore();
    store.setValue(kMost, limit.most);
    store.setValue(kDays, limit.days);
}

std::vector<BackupFile> BeyondLimit(const std::vector<BackupFile>& newestFirst, const BackupLimit& limit,
                                    const QDateTime& now)
{
    std::vector<BackupFile> beyond;
    int count = 0;
    for (const BackupFile& backup : newestFirst) {
        const bool isTooMany = limit.most > 0 && ++count > limit.most;
        const bool isTooOld = limit.days > 0 && backup.time.daysTo(now) > limit.days;
        if (isTooMany || isTooOld)
            beyond.push_back(backup);
    }
    return beyond;
}

int DeleteBeyondLimit(const QString& justKept)
{
    const QFileInfo kept(justKept);
    int deleted = 0;
    for (const BackupFile& backup :
         BeyondLimit(BackupsIn(kept.absolutePath()), LoadBackupLimit(), QDateTime::currentDateTime()))
        if (backup.path != kept.absoluteFilePath() && QFile::remove(backup.path))
            ++deleted;
    return deleted;
}

}  // namespace rqm5
