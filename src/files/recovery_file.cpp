#include "files/recovery_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <algorithm>

#include "files/clone_file.h"
#include "files/file_store.h"
#include "image/display_text.h"

namespace rqm5 {
namespace {

const QString kSuffix = QStringLiteral(".RQ5");

QString NewPath(const QString& folder)
{
    return QDir(folder).filePath(QStringLiteral("recovery-") +
                                 QUuid::createUuid().toString(QUuid::WithoutBraces) + kSuffix);
}

void MendNote(std::string& note)
{
    note = VisibleText(note);
    std::replace(note.begin(), note.end(), ',', ';');
    if (note.starts_with('"'))
        std::replace(note.begin(), note.end(), '"', '\'');
}

}  // namespace

RecoveryFile::RecoveryFile(const QString& folder) : RecoveryFile(Existing{NewPath(folder)}) {}

RecoveryFile::RecoveryFile(const Existing& existing)
    : path_(existing.path), lock_(existing.path + QStringLiteral(".lock"))
{
    lock_.setStaleLockTime(0);  // work may lie unsaved for days
}

bool RecoveryFile::Lock()
{
    // Whoever cleared the folder has taken the lock with it.
    if (lock_.isLocked() && !QFileInfo::exists(lock_.fileName()))
        lock_.unlock();
    if (lock_.isLocked() || lock_.tryLock(0))
        return true;
    // The number of a dead program may have gone to another one, this one included. The system's own lock
    // on the file tells the truth: it is gone with its holder, and only then can this succeed.
    return lock_.removeStaleLockFile() && lock_.tryLock(0);
}

std::vector<std::unique_ptr<RecoveryFile>> RecoveryFile::Abandoned(const QString& folder)
{
    std::vector<std::unique_ptr<RecoveryFile>> files;
    const QStringList patterns{QStringLiteral("recovery-*") + kSuffix};
    for (const QFileInfo& info : QDir(folder).entryInfoList(patterns, QDir::Files, QDir::Time)) {
        std::unique_ptr<RecoveryFile> file(new RecoveryFile(Existing{info.filePath()}));
        // Another program may have removed it between the listing and the lock.
        if (file->Lock() && QFileInfo::exists(info.filePath()))
            files.push_back(std::move(file));
    }
    return files;
}

std::optional<Problem> RecoveryFile::Keep(const std::string& text, const QString& origin)
{
    QDir().mkpath(QFileInfo(path_).path());
    if (!Lock())
        return Problem{kFileOpenError, VisibleText(lock_.fileName().toStdString()) + ": cannot be made"};
    if (origin != Origin())
        if (auto problem = WriteWholeFile(OriginPath(), origin.toStdString()))
            return problem;
    return WriteWholeFile(path_, text);
}

void RecoveryFile::Remove()
{
    QFile::remove(path_);
    QFile::remove(OriginPath());
    lock_.unlock();
}

QString RecoveryFile::OriginPath() const
{
    return path_ + QStringLiteral(".origin");
}

QString RecoveryFile::Origin() const
{
    std::string origin;
    return QFileInfo::exists(OriginPath()) && !ReadWholeFile(OriginPath(), origin)
               ? QString::fromStdString(origin)
               : QString();
}

QDateTime RecoveryFile::Time() const
{
    return QFileInfo(path_).lastModified();
}

std::string RecoveryText(const CloneImage& image)
{
    if (NotesThatDoNotSurvive(image).empty())
        return FormatCloneFile(image);
    CloneImage mended = image;
    for (int row = 0; row < kVfoRows; ++row)
        MendNote(mended.VFOData(row).note);
    for (int row = 0; row < kMemoryRows; ++row)
        MendNote(mended.MemData(row).note);
    return FormatCloneFile(mended);
}

}  // namespace rqm5
