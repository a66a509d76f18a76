#include "files/recovery_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <algorithm>

#include "files/clone_file.h"
#include "files/safe_notes.h"
#include "image/display_text.h"

namespace rqm5 {
namespace {

const QString kSuffix = QStringLiteral(".RQ5");

const QString kPrefix = QStringLiteral("recovery-");
const QString kReadPrefix = QStringLiteral("recovery-read-");

constexpr int kMarkDigits = 64;

QString NewPath(const QString& folder, RecoveryFile::Work work)
{
    return QDir(folder).filePath((work == RecoveryFile::Work::Read ? kReadPrefix : kPrefix) +
                                 QUuid::createUuid().toString(QUuid::WithoutBraces) + kSuffix);
}

/// The path, and the mark on a line below.
std::string OriginText(const RecoveryOrigin& origin)
{
    const std::string mark = origin.mark.toHex().toStdString();
    return origin.path.toStdString() + (mark.empty() ? "" : '\n' + mark);
}

/// A new folder is its owner's alone: files may come from where nobody else may look.
void MakeFolder(const QString& path)
{
    constexpr auto kOwner = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    if (!QFileInfo::exists(path) && QDir().mkpath(path))
        QFile::setPermissions(path, kOwner);
}

}  // namespace

RecoveryFile::RecoveryFile(const QString& folder, Work work) : RecoveryFile(Existing{NewPath(folder, work)})
{
}

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
    const QStringList patterns{kPrefix + QLatin1Char('*') + kSuffix};
    for (const QFileInfo& info : QDir(folder).entryInfoList(patterns, QDir::Files, QDir::Time)) {
        std::unique_ptr<RecoveryFile> file(new RecoveryFile(Existing{info.filePath()}));
        // Another program may have removed it between the listing and the lock.
        if (file->Lock() && QFileInfo::exists(info.filePath()))
            files.push_back(std::move(file));
    }
    return files;
}

std::optional<Problem> RecoveryFile::Keep(const std::string& text, const RecoveryOrigin& origin)
{
    MakeFolder(QFileInfo(path_).path());
    if (!Lock())
        return Problem{kFileOpenError,
                       {MESSAGE("%1: cannot be made"), {VisibleText(lock_.fileName().toStdString())}}};
    if (origin != Origin())
        if (auto problem = WriteWholeFile(OriginPath(), OriginText(origin)))
            return problem;
    return WriteWholeFile(path_, text);
}

void RecoveryFile::Remove()
{
    QFile::remove(path_);
    QFile::remove(OriginPath());
    lock_.unlock();
}

RecoveryFile::Work RecoveryFile::Holds() const
{
    return QFileInfo(path_).fileName().startsWith(kReadPrefix) ? Work::Read : Work::Edits;
}

QString RecoveryFile::OriginPath() const
{
    return path_ + QStringLiteral(".origin");
}

RecoveryOrigin RecoveryFile::Origin() const
{
    std::string text;
    if (!QFileInfo::exists(OriginPath()) || ReadWholeFile(OriginPath(), text))
        return {};
    // A name may hold line ends, and older programs kept no mark.
    const std::size_t end = text.size() > kMarkDigits ? text.size() - kMarkDigits - 1 : 0;
    const FileMark mark = FileMark::fromHex(QByteArray::fromStdString(text.substr(end)).trimmed());
    if (text.empty() || text[end] != '\n' || mark.size() != kMarkDigits / 2)
        return {QString::fromStdString(text), {}};
    return {QString::fromStdString(text.substr(0, end)), mark};
}

QDateTime RecoveryFile::Time() const
{
    return QFileInfo(path_).lastModified();
}

std::string RecoveryText(const CloneImage& image)
{
    return FormatCloneFile(NotesThatDoNotSurvive(image).empty() ? image : WithSafeNotes(image));
}

}  // namespace rqm5
