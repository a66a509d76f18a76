#include "files/replacing_file.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <cerrno>
#include <utility>

#include "platform/file_access.h"

namespace rqm5 {
namespace {

/// A younger one may belong to a program that is saving right now.
void RemoveLeftovers(const QDir& folder)
{
    constexpr qint64 kLeftSeconds = 60;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const auto files = folder.entryInfoList({QStringLiteral(".rq5-save-??????")},
                                            QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& file : files)
        if (file.lastModified().secsTo(now) > kLeftSeconds)
            QFile::remove(file.filePath());
}

}  // namespace

QString LinkTarget(QString path)
{
    constexpr int kMostLinks = 40;  // as many as the system follows
    for (int i = 0; i < kMostLinks && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

ReplacingFile::ReplacingFile(const QString& path)
    : target_(LinkTarget(path)),
      file_(std::make_unique<QTemporaryFile>(QFileInfo(target_).absolutePath() +
                                             QStringLiteral("/.rq5-save-XXXXXX")))
{
}

std::optional<DiskFault> ReplacingFile::Open()
{
    const QFileInfo old(target_);
    RemoveLeftovers(old.absoluteDir());
    // A rename would replace it all the same; its owner does not want that.
    if (old.exists() && !old.isWritable())
        return DiskFault{MESSAGE("Permission denied"), EACCES};
    errno = 0;
    if (file_->open())
        return std::nullopt;
    return DiskFault{SystemReason(file_->errorString()), errno};
}

std::optional<DiskFault> ReplacingFile::Replace(const std::string& bytes)
{
    if (auto fault = WriteAll(*file_, bytes))
        return fault;
    SetAccess();
    if (auto fault = FlushFile(*file_))
        return fault;
    if (auto fault = Rename())
        return fault;
    return FlushFolder(target_);
}

/// Those of the old file, or those that a new file gets.
void ReplacingFile::SetAccess()
{
    if (QFileInfo::exists(target_))
        accessChanges_ = CarryAccess(target_, file_->handle());
    else
        GiveUsualAccess(*file_);
}

std::optional<DiskFault> ReplacingFile::Rename()
{
    errno = 0;
    const QString name = file_->fileName();  // gives a nameless file its name
    if (name.isEmpty() || !QFileInfo::exists(name))
        return DiskFault{
            {MESSAGE("the new file gets no name here (%1)"), {SystemReason(qt_error_string(errno))}}, errno};
    identity_ = FileIdentity::Of(name);
    return PutInPlace(std::move(file_), name, target_);
}

}  // namespace rqm5
