#include <windows.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <cerrno>

#include "platform/disk.h"

namespace rqm5 {
namespace {

const wchar_t* Native(const QString& path)
{
    return reinterpret_cast<const wchar_t*>(path.utf16());
}

DiskFault LastFault()
{
    const DWORD code = GetLastError();
    const bool isFull = code == ERROR_DISK_FULL || code == ERROR_HANDLE_DISK_FULL;
    const bool isForbidden = code == ERROR_ACCESS_DENIED || code == ERROR_SHARING_VIOLATION;
    return {qt_error_string(static_cast<int>(code)).toStdString(),
            isFull        ? ENOSPC
            : isForbidden ? EACCES
                          : 0,
            false};
}

/// A file can be moved only when this program has it closed, so it is opened once more for this.
bool FlushClosedFile(const QString& name)
{
    const HANDLE file = CreateFileW(Native(name), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    const bool isOnDisk = FlushFileBuffers(file) != 0;
    const DWORD code = GetLastError();
    CloseHandle(file);
    SetLastError(code);
    return isOnDisk;
}

}  // namespace

FileIdentity FileIdentity::Of(const QString& path)
{
    const QFileInfo info(path);
    return {0, 0, info.size(), info.lastModified().toMSecsSinceEpoch()};
}

std::optional<DiskFault> WriteAll(QFile& file, const std::string& bytes)
{
    const auto size = static_cast<qint64>(bytes.size());
    if (file.write(bytes.data(), size) == size && file.flush())
        return std::nullopt;
    return DiskFault{file.errorString().toStdString()};
}

// Flushed when it is closed, below.
std::optional<DiskFault> FlushFile(QFile& /*file*/)
{
    return std::nullopt;
}

// New files have the access that their folder gives.
void GiveUsualAccess(QFile& /*file*/) {}

std::optional<DiskFault> PutInPlace(std::unique_ptr<QTemporaryFile> file, const QString& name,
                                    const QString& target)
{
    // Only its end closes a temporary file, and an open one cannot be moved.
    file->setAutoRemove(false);
    file.reset();
    const QString from = QDir::toNativeSeparators(name);
    const QString to = QDir::toNativeSeparators(target);
    if (FlushClosedFile(from) &&
        MoveFileExW(Native(from), Native(to), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
        return std::nullopt;
    const DiskFault fault = LastFault();
    QFile::remove(name);
    return fault;
}

// The move waits for the disk itself.
std::optional<DiskFault> FlushFolder(const QString& /*file*/)
{
    return std::nullopt;
}

SecondName GiveSecondName(const QString& /*path*/, const QString& /*second*/, QString& /*reason*/)
{
    return SecondName::Unknown;
}

QString NameFault(const QString& /*path*/)
{
    return {};
}

Message SystemReason(const QString& text)
{
    return text.toStdString();
}

bool IsDiskFull(int code)
{
    return code == ENOSPC || code == EFBIG;
}

void TurnFileSizeLimitIntoError() {}

}  // namespace rqm5
