#include "files/replacing_file.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "files/file_access.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <filesystem>
#endif

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

DiskFault SystemFault(int code)
{
    return {qt_error_string(code).toStdString(), code, false};
}

#ifdef Q_OS_UNIX
/// Some disks tell only when all has to be on them that they are full or broken. A file system that cannot
/// be asked is no fault.
std::optional<DiskFault> Flushed(int descriptor)
{
    if (::fsync(descriptor) != 0 && (errno == EIO || errno == ENOSPC || errno == EDQUOT))
        return SystemFault(errno);
    return std::nullopt;
}
#endif

/// Without this the new name may be lost when the power fails, and the old contents come back. There is
/// nothing to be done where the folder cannot be opened for it.
std::optional<DiskFault> FlushFolder([[maybe_unused]] const QString& file)
{
#ifdef Q_OS_UNIX
    const QByteArray name = QFile::encodeName(QFileInfo(file).absolutePath());
    const int folder = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return std::nullopt;
    auto fault = Flushed(folder);
    ::close(folder);
    if (fault)
        fault->isInPlace = true;
    return fault;
#else
    return std::nullopt;
#endif
}

}  // namespace

QString LinkTarget(QString path)
{
    constexpr int kMostLinks = 40;  // as many as the system follows
    for (int i = 0; i < kMostLinks && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

FileIdentity FileIdentity::Of(const QString& path)
{
#ifdef Q_OS_UNIX
    struct stat file = {};
    if (::stat(QFile::encodeName(path).constData(), &file) != 0)
        return {};
#ifdef Q_OS_DARWIN
    const timespec& time = file.st_mtimespec;
#else
    const timespec& time = file.st_mtim;
#endif
    constexpr qint64 kNanoseconds = 1'000'000'000;
    return {static_cast<quint64>(file.st_dev), static_cast<quint64>(file.st_ino),
            static_cast<qint64>(file.st_size), time.tv_sec * kNanoseconds + time.tv_nsec};
#else
    const QFileInfo info(path);
    return {0, 0, info.size(), info.lastModified().toMSecsSinceEpoch()};
#endif
}

ReplacingFile::ReplacingFile(const QString& path)
    : target_(LinkTarget(path)),
      file_(QFileInfo(target_).absolutePath() + QStringLiteral("/.rq5-save-XXXXXX"))
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
    if (file_.open())
        return std::nullopt;
    return DiskFault{file_.errorString().toStdString(), errno};
}

std::optional<DiskFault> ReplacingFile::Replace(const std::string& bytes)
{
    if (auto fault = Write(bytes))
        return fault;
    SetAccess();
    if (auto fault = Flush())
        return fault;
    if (auto fault = Rename())
        return fault;
    return FlushFolder(target_);
}

std::optional<DiskFault> ReplacingFile::Write(const std::string& bytes)
{
#ifdef Q_OS_UNIX
    // A disk that is full takes a part first; only the next write says why it takes no more.
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t written = ::write(file_.handle(), bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno != EINTR)
            return SystemFault(errno);
        done += static_cast<std::size_t>(std::max<ssize_t>(written, 0));
    }
    return std::nullopt;
#else
    const auto size = static_cast<qint64>(bytes.size());
    if (file_.write(bytes.data(), size) == size && file_.flush())
        return std::nullopt;
    return DiskFault{file_.errorString().toStdString()};
#endif
}

/// Those of the old file, or those that a new file gets.
void ReplacingFile::SetAccess()
{
#ifdef Q_OS_UNIX
    if (QFileInfo::exists(target_)) {
        accessChanges_ = CarryAccess(target_, file_.handle());
        return;
    }
    const mode_t masked = ::umask(0);
    ::umask(masked);
    // Where this fails the file is its owner's alone, which harms nobody.
    [[maybe_unused]] const int failed = ::fchmod(file_.handle(), 0666 & ~masked);
#else
    if (QFileInfo::exists(target_))
        file_.setPermissions(QFile::permissions(target_));
#endif
}

std::optional<DiskFault> ReplacingFile::Flush()
{
#ifdef Q_OS_UNIX
    return Flushed(file_.handle());
#else
    return std::nullopt;
#endif
}

std::optional<DiskFault> ReplacingFile::Rename()
{
    errno = 0;
    const QString name = file_.fileName();  // gives a nameless file its name
    if (name.isEmpty() || !QFileInfo::exists(name))
        return DiskFault{
            {MESSAGE("the new file gets no name here (%1)"), {qt_error_string(errno).toStdString()}}, errno};
    identity_ = FileIdentity::Of(name);
    file_.close();
#ifdef Q_OS_UNIX
    if (std::rename(QFile::encodeName(name).constData(), QFile::encodeName(target_).constData()) != 0)
        return SystemFault(errno);
#else
    std::error_code error;
    std::filesystem::rename(name.toStdWString(), target_.toStdWString(), error);
    if (error)
        return DiskFault{QString::fromLocal8Bit(error.message().c_str()).toStdString()};
#endif
    file_.setAutoRemove(false);
    return std::nullopt;
}

}  // namespace rqm5
