#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <cerrno>

#include "files/file_store.h"
#include "files/replacing_file.h"
#include "image/display_text.h"

namespace rqm5 {
namespace {

constexpr qint64 kLargestFile = 16 * 1024 * 1024;

/// Why a file cannot be used, and what to do about it.
struct Obstacle
{
    Message reason;
    Message remedy;
};

Problem ProblemWith(const QFileInfo& file, const Obstacle& obstacle)
{
    return {kFileOpenError,
            {MESSAGE("%1: %2. %3"),
             {VisibleText(file.absoluteFilePath().toStdString()), obstacle.reason, obstacle.remedy}}};
}

/// What stands at the path but is no file that can be read or replaced.
std::optional<Obstacle> NotAFile(const QFileInfo& file)
{
    if (file.filePath().isEmpty())
        return Obstacle{MESSAGE("no file name was given"), MESSAGE("Give one.")};
    if (file.isDir())
        return Obstacle{MESSAGE("this is a folder"), MESSAGE("Give the name of a file.")};
    if (file.exists() && !file.isFile())
        return Obstacle{MESSAGE("this is a device or a pipe and no file"),
                        MESSAGE("Give the name of a file.")};
    return std::nullopt;
}

Message OpenRemedy(const QFileInfo& file)
{
    if (file.exists() && !file.isWritable())
        return MESSAGE("Change the permissions of the file or save under another name.");
    return MESSAGE("Check the name and the permissions of the folder, or save in another one.");
}

/// What helps against a fault of the disk. Only what the disk itself reports is blamed on it.
Message Remedy(int code, const QFileInfo& file)
{
    if (IsDiskFull(code))
        return MESSAGE("Free some space on the disk or save on another one, then repeat.");
    switch (code) {
        case ENAMETOOLONG:
            return MESSAGE("Give a shorter name.");
        case EMFILE:
        case ENFILE:
            return MESSAGE("Too many files are open; close other programs, then repeat.");
        case EIO:
            return MESSAGE("The disk may be failing; save on another one.");
        case EACCES:
        case EPERM:
        case EROFS:
            return OpenRemedy(file);
        default:
            return MESSAGE("Save in another folder or on another disk.");
    }
}

std::optional<Obstacle> WriteObstacle(const QFileInfo& file)
{
    if (auto obstacle = NotAFile(file))
        return obstacle;
    // What a link points to is replaced, so its folder is the one that counts.
    const QFileInfo target(file.exists() ? file.canonicalFilePath() : file.absoluteFilePath());
    const QFileInfo folder(target.absolutePath());
    if (!folder.isDir())
        return Obstacle{
            {MESSAGE("the folder %1 does not exist"), {VisibleText(folder.filePath().toStdString())}},
            MESSAGE("Make the folder or choose another one.")};
    if (const QString fault = NameFault(target.absoluteFilePath()); !fault.isEmpty())
        return Obstacle{SystemReason(fault), Remedy(ENAMETOOLONG, file)};
    if ((file.exists() && !file.isWritable()) || !folder.isWritable())
        return Obstacle{MESSAGE("permission denied"), OpenRemedy(file)};
    return std::nullopt;
}

std::optional<Obstacle> ReadObstacle(const QFileInfo& file)
{
    if (auto obstacle = NotAFile(file))
        return obstacle;
    if (!file.exists())
        return Obstacle{MESSAGE("there is no such file"), MESSAGE("Check its name and its folder.")};
    return std::nullopt;
}

Obstacle TooLarge()
{
    return {MESSAGE("the file is larger than 16 MiB"),
            MESSAGE("No clone file and no CSV file of a receiver is; choose another one.")};
}

}  // namespace

std::optional<Problem> SaveObstacle(const QString& path)
{
    const QFileInfo info(path);
    const auto obstacle = WriteObstacle(info);
    return obstacle ? std::optional(ProblemWith(info, *obstacle)) : std::nullopt;
}

std::optional<Problem> ReadingObstacle(const QString& path)
{
    constexpr qint64 kKilobyte = 1024;
    constexpr qint64 kNeeded = 128;  // a clone file has 80
    if (auto problem = SaveObstacle(path))
        return problem;
    const QFileInfo info(path);
    // Less than 0 when the system does not tell.
    const qint64 free = QStorageInfo(info.absolutePath()).bytesAvailable();
    if (free < 0 || free >= kNeeded * kKilobyte)
        return std::nullopt;
    return ProblemWith(info, {{MESSAGE("only %1 KiB are free on the disk, and the file needs %2"),
                               {static_cast<int>(free / kKilobyte), static_cast<int>(kNeeded)}},
                              Remedy(ENOSPC, info)});
}

std::optional<Problem> WriteWholeFile(const QString& path, const std::string& bytes, WriteReport* report)
{
    const QFileInfo info(path);
    if (auto problem = SaveObstacle(path))
        return problem;
    ReplacingFile file(path);
    if (const auto fault = file.Open())
        return ProblemWith(info, {fault->reason, Remedy(fault->code, info)});
    const auto fault = file.Replace(bytes);
    if (report != nullptr)
        *report = {file.AccessChanges(), file.Identity(), !fault || fault->isInPlace};
    if (!fault)
        return std::nullopt;
    const Message reason = {
        fault->isInPlace ? MESSAGE("%1; the new file is in place, but it may be lost when the power fails")
                         : MESSAGE("%1; nothing was changed"),
        {fault->reason}};
    return ProblemWith(info, {reason, Remedy(fault->code, info)});
}

std::optional<Problem> ReadWholeFile(const QString& path, std::string& bytes)
{
    const QFileInfo info(path);
    if (const auto obstacle = ReadObstacle(info))
        return ProblemWith(info, *obstacle);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ProblemWith(info, {SystemReason(file.errorString()),
                                  MESSAGE("Change the permissions of the file or open a copy.")});
    if (file.size() > kLargestFile)
        return ProblemWith(info, TooLarge());
    // The size that the system tells may be wrong: some files have none, others grow.
    const QByteArray read = file.read(kLargestFile + 1);
    if (read.size() > kLargestFile)
        return ProblemWith(info, TooLarge());
    if (file.error() != QFileDevice::NoError)
        return ProblemWith(info,
                           {SystemReason(file.errorString()), MESSAGE("Open a copy from another disk.")});
    bytes.assign(read.constData(), static_cast<std::size_t>(read.size()));
    return std::nullopt;
}

}  // namespace rqm5
