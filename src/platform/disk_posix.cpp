#include "platform/disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>

namespace rqm5 {
namespace {

struct UsualReason
{
    int code;
    const char* text;
};

constexpr UsualReason kUsualReasons[] = {
    {EACCES, MESSAGE("Permission denied")},         {EPERM, MESSAGE("Operation not permitted")},
    {ENOENT, MESSAGE("No such file or directory")}, {EISDIR, MESSAGE("Is a directory")},
    {EROFS, MESSAGE("Read-only file system")},      {ENOSPC, MESSAGE("No space left on device")},
    {EDQUOT, MESSAGE("Disk quota exceeded")},       {EFBIG, MESSAGE("File too large")},
    {EIO, MESSAGE("Input/output error")},           {EMFILE, MESSAGE("Too many open files")},
    {ENAMETOOLONG, MESSAGE("File name too long")},
};

DiskFault SystemFault(int code)
{
    return {SystemReason(qt_error_string(code)), code, false};
}

/// Some disks tell only when all has to be on them that they are full or broken. A file system that cannot
/// be asked is no fault.
std::optional<DiskFault> Flushed(int descriptor)
{
    if (::fsync(descriptor) != 0 && (errno == EIO || errno == ENOSPC || errno == EDQUOT))
        return SystemFault(errno);
    return std::nullopt;
}

}  // namespace

FileIdentity FileIdentity::Of(const QString& path)
{
    struct stat file = {};
    if (::stat(QFile::encodeName(path).constData(), &file) != 0)
        return {};
#ifdef __APPLE__
    const timespec& time = file.st_mtimespec;
#else
    const timespec& time = file.st_mtim;
#endif
    constexpr qint64 kNanoseconds = 1'000'000'000;
    return {static_cast<quint64>(file.st_dev), static_cast<quint64>(file.st_ino),
            static_cast<qint64>(file.st_size), time.tv_sec * kNanoseconds + time.tv_nsec};
}

std::optional<DiskFault> WriteAll(QFile& file, const std::string& bytes)
{
    // A disk that is full takes a part first; only the next write says why it takes no more.
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t written = ::write(file.handle(), bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno != EINTR)
            return SystemFault(errno);
        done += static_cast<std::size_t>(std::max<ssize_t>(written, 0));
    }
    return std::nullopt;
}

std::optional<DiskFault> FlushFile(QFile& file)
{
    return Flushed(file.handle());
}

void GiveUsualAccess(QFile& file)
{
    const mode_t masked = ::umask(0);
    ::umask(masked);
    // Where this fails the file is its owner's alone, which harms nobody.
    [[maybe_unused]] const int failed = ::fchmod(file.handle(), 0666 & ~masked);
}

std::optional<DiskFault> PutInPlace(std::unique_ptr<QTemporaryFile> file, const QString& name,
                                    const QString& target)
{
    file->close();
    if (std::rename(QFile::encodeName(name).constData(), QFile::encodeName(target).constData()) != 0)
        return SystemFault(errno);
    file->setAutoRemove(false);
    return std::nullopt;
}

/// Without this the new name may be lost when the power fails, and the old contents come back. There is
/// nothing to be done where the folder cannot be opened for it.
std::optional<DiskFault> FlushFolder(const QString& file)
{
    const QByteArray name = QFile::encodeName(QFileInfo(file).absolutePath());
    const int folder = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return std::nullopt;
    auto fault = Flushed(folder);
    ::close(folder);
    if (fault)
        fault->isInPlace = true;
    return fault;
}

SecondName GiveSecondName(const QString& path, const QString& second, QString& reason)
{
    // The name is made aside first, so that an older file of that name stays until then.
    const QByteArray to = QFile::encodeName(second);
    const QByteArray aside =
        QFile::encodeName(QFileInfo(second).absolutePath() +
                          QStringLiteral("/.rq5-save-%1").arg(::getpid() % 1000000, 6, 10, QLatin1Char('0')));
    ::unlink(aside.constData());
    if (::link(QFile::encodeName(path).constData(), aside.constData()) != 0)
        return SecondName::Unknown;
    const bool isGiven = std::rename(aside.constData(), to.constData()) == 0;
    const int error = errno;
    ::unlink(aside.constData());  // a rename between two names of one file leaves both
    if (isGiven)
        return SecondName::Given;
    reason = qt_error_string(error);
    return SecondName::Refused;
}

QString NameFault(const QString& path)
{
    struct stat found = {};
    if (::lstat(QFile::encodeName(path).constData(), &found) != 0 && errno == ENAMETOOLONG)
        return qt_error_string(ENAMETOOLONG);
    return {};
}

Message SystemReason(const QString& text)
{
    const auto* const usual = std::ranges::find_if(
        kUsualReasons, [&](const UsualReason& reason) { return qt_error_string(reason.code) == text; });
    return usual == std::end(kUsualReasons) ? Message(text.toStdString()) : Message(usual->text);
}

bool IsDiskFull(int code)
{
    return code == ENOSPC || code == EFBIG || code == EDQUOT;
}

void TurnFileSizeLimitIntoError()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace rqm5
