#include <QFile>
#include <QFileInfo>

#include <csignal>

#include "files/file_store.h"
#include "files/replacing_file.h"
#include "image/display_text.h"

namespace rqm5 {
namespace {

constexpr qint64 kLargestFile = 16 * 1024 * 1024;

/// Why a file cannot be used, and what to do about it.
struct Obstacle
{
    QString reason;
    QString remedy;
};

Problem ProblemWith(const QFileInfo& file, const Obstacle& obstacle)
{
    const QString text = QStringLiteral("%1. %2").arg(obstacle.reason, obstacle.remedy);
    return {kFileOpenError,
            VisibleText(file.absoluteFilePath().toStdString()) + ": " + VisibleText(text.toStdString())};
}

/// What stands at the path but is no file that can be read or replaced.
std::optional<Obstacle> NotAFile(const QFileInfo& file)
{
    if (file.filePath().isEmpty())
        return Obstacle{QStringLiteral("no file name was given"), QStringLiteral("Give one.")};
    if (file.isDir())
        return Obstacle{QStringLiteral("this is a folder"), QStringLiteral("Give the name of a file.")};
    if (file.exists() && !file.isFile())
        return Obstacle{QStringLiteral("this is a device or a pipe and no file"),
                        QStringLiteral("Give the name of a file.")};
    return std::nullopt;
}

QString OpenRemedy(const QFileInfo& file)
{
    if (file.exists() && !file.isWritable())
        return QStringLiteral("Change the permissions of the file or save under another name.");
    return QStringLiteral("Check the name and the permissions of the folder, or save in another one.");
}

std::optional<Obstacle> WriteObstacle(const QFileInfo& file)
{
    if (auto obstacle = NotAFile(file))
        return obstacle;
    // What a link points to is replaced, so its folder is the one that counts.
    const QFileInfo target(file.exists() ? file.canonicalFilePath() : file.absoluteFilePath());
    const QFileInfo folder(target.absolutePath());
    if (!folder.isDir())
        return Obstacle{QStringLiteral("the folder %1 does not exist").arg(folder.filePath()),
                        QStringLiteral("Make the folder or choose another one.")};
    if ((file.exists() && !file.isWritable()) || !folder.isWritable())
        return Obstacle{QStringLiteral("permission denied"), OpenRemedy(file)};
    return std::nullopt;
}

std::optional<Obstacle> ReadObstacle(const QFileInfo& file)
{
    if (auto obstacle = NotAFile(file))
        return obstacle;
    if (!file.exists())
        return Obstacle{QStringLiteral("there is no such file"),
                        QStringLiteral("Check its name and its folder.")};
    return std::nullopt;
}

Obstacle TooLarge()
{
    return {QStringLiteral("the file is larger than 16 MiB"),
            QStringLiteral("No clone file and no CSV file of a receiver is; choose another one.")};
}

}  // namespace

void TurnFileSizeLimitIntoError()
{
#ifdef Q_OS_UNIX
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

std::optional<Problem> SaveObstacle(const QString& path)
{
    const QFileInfo info(path);
    const auto obstacle = WriteObstacle(info);
    return obstacle ? std::optional(ProblemWith(info, *obstacle)) : std::nullopt;
}

std::optional<Problem> WriteWholeFile(const QString& path, const std::string& bytes)
{
    const QFileInfo info(path);
    if (auto problem = SaveObstacle(path))
        return problem;
    ReplacingFile file(path);
    if (const QString reason = file.Open(); !reason.isEmpty())
        return ProblemWith(info, {reason, OpenRemedy(info)});
    if (const QString reason = file.Replace(bytes); !reason.isEmpty())
        return ProblemWith(
            info, {reason + QStringLiteral("; nothing was changed"),
                   QStringLiteral("Free some space on the disk or save on another one, then repeat.")});
    return std::nullopt;
}

std::optional<Problem> ReadWholeFile(const QString& path, std::string& bytes)
{
    const QFileInfo info(path);
    if (const auto obstacle = ReadObstacle(info))
        return ProblemWith(info, *obstacle);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ProblemWith(
            info, {file.errorString(), QStringLiteral("Change the permissions of the file or open a copy.")});
    if (file.size() > kLargestFile)
        return ProblemWith(info, TooLarge());
    // The size that the system tells may be wrong: some files have none, others grow.
    const QByteArray read = file.read(kLargestFile + 1);
    if (read.size() > kLargestFile)
        return ProblemWith(info, TooLarge());
    if (file.error() != QFileDevice::NoError)
        return ProblemWith(info, {file.errorString(), QStringLiteral("Open a copy from another disk.")});
    bytes.assign(read.constData(), static_cast<std::size_t>(read.size()));
    return std::nullopt;
}

}  // namespace rqm5
