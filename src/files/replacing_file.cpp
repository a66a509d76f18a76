#include "files/replacing_file.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace rqm5 {
namespace {

/// What a link, or a link to a link, points to; it need not exist.
QString Target(QString path)
{
    constexpr int kMostLinks = 40;  // as many as the system follows
    for (int i = 0; i < kMostLinks && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

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

/// The permissions of the old file, or those that a new file gets.
void SetPermissions(QFile& file, const QString& target)
{
    if (QFileInfo::exists(target)) {
        file.setPermissions(QFile::permissions(target));
        return;
    }
#ifdef Q_OS_UNIX
    const mode_t masked = ::umask(0);
    ::umask(masked);
    // Where this fails the file is its owner's alone, which harms nobody.
    [[maybe_unused]] const int failed = ::fchmod(file.handle(), 0666 & ~masked);
#endif
}

/// Without this the new name may be lost when the power fails, and the old contents come back. There is
/// nothing to be done where a file system cannot do it.
void FlushFolder([[maybe_unused]] const QString& file)
{
#ifdef Q_OS_UNIX
    const QByteArray name = QFile::encodeName(QFileInfo(file).absolutePath());
    const int folder = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
#endif
}

}  // namespace

ReplacingFile::ReplacingFile(const QString& path)
    : target_(Target(path)), file_(QFileInfo(target_).absolutePath() + QStringLiteral("/.rq5-save-XXXXXX"))
{
}

QString ReplacingFile::Open()
{
    const QFileInfo old(target_);
    RemoveLeftovers(old.absoluteDir());
    // A rename would replace it all the same; its owner does not want that.
    if (old.exists() && !old.isWritable())
        return QStringLiteral("Permission denied");
    return file_.open() ? QString() : file_.errorString();
}

QString ReplacingFile::Replace(const std::string& bytes)
{
    if (QString reason = Write(bytes); !reason.isEmpty())
        return reason;
    SetPermissions(file_, target_);
    if (QString reason = Flush(); !reason.isEmpty())
        return reason;
    QString reason = Rename();
    if (reason.isEmpty())
        FlushFolder(target_);
    return reason;
}

QString ReplacingFile::Write(const std::string& bytes)
{
#ifdef Q_OS_UNIX
    // A disk that is full takes a part first; only the next write says why it takes no more.
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t written = ::write(file_.handle(), bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno != EINTR)
            return qt_error_string(errno);
        done += static_cast<std::size_t>(std::max<ssize_t>(written, 0));
    }
    return {};
#else
    const auto size = static_cast<qint64>(bytes.size());
    return file_.write(bytes.data(), size) == size && file_.flush() ? QString() : file_.errorString();
#endif
}

/// Some disks tell only here that they are full or broken.
QString ReplacingFile::Flush()
{
#ifdef Q_OS_UNIX
    if (::fsync(file_.handle()) != 0 && (errno == EIO || errno == ENOSPC || errno == EDQUOT))
        return qt_error_string(errno);
#endif
    return {};
}

QString ReplacingFile::Rename()
{
    const QString name = file_.fileName();  // gives a nameless file its name
    file_.close();
    const auto path = [](const QString& text) {
        return std::filesystem::path(QFile::encodeName(text).toStdString());
    };
    std::error_code error;
    std::filesystem::rename(path(name), path(target_), error);
    if (error)
        return QString::fromLocal8Bit(error.message().c_str());
    file_.setAutoRemove(false);
    return {};
}

}  // namespace rqm5
