// What the disk can do to a save: the file is always whole, the old or the new one.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <array>
#include <csignal>
#include <random>
#include <thread>

#include "files/clone_file.h"
#include "files/file_store.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

constexpr int kSaves = 1000;

CloneImage NumberedImage(int number)
{
    CloneImage image = StartUpImage(0);
    for (int row = 0; row < kMemoryRows; ++row)
        image.MemData(row).note = "save " + std::to_string(number);
    return image;
}

/// The number of the save that a file holds, -1 when it is not the whole of one.
int SaveNumber(const QString& path)
{
    CloneImage image;
    if (LoadCloneFile(path, image))
        return -1;
    const std::string& note = image.MemData(0).note;
    const int number = note.starts_with("save ") ? std::stoi(note.substr(5)) : -1;
    return image == NumberedImage(number) ? number : -1;
}

QStringList FilesIn(const QTemporaryDir& folder)
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
}

/// Runs work in a process of its own, which ends with its result.
template <typename Work>
pid_t Fork(Work work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work());
    return child;
}

int ExitStatus(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A child saves again and again, from a number on, and is killed after a random time.
/// \return how many saves it told to be done
int SavesUntilKilled(const QString& path, int first, std::minstd_rand& dice)
{
    std::array<int, 2> told{};
    if (pipe(told.data()) != 0)
        return 0;
    const pid_t child = Fork([&] {
        for (int number = first;; ++number) {
            if (SaveCloneFile(path, NumberedImage(number)).problem || write(told[1], "x", 1) != 1)
                return 1;
        }
    });
    close(told[1]);
    char byte = 0;
    int saves = static_cast<int>(read(told[0], &byte, 1));
    std::this_thread::sleep_for(std::chrono::microseconds(dice() % 10000));
    kill(child, SIGKILL);
    while (read(told[0], &byte, 1) == 1)
        ++saves;
    close(told[0]);
    waitpid(child, nullptr, 0);
    return saves;
}

TEST(Disk, AKillWhileSavingLeavesTheOldOrTheNewFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.RQ5"));
    std::minstd_rand dice(1);
    int kills = 0;
    for (int next = 0; next < kSaves; ++kills) {
        const int done = SavesUntilKilled(path, next, dice);
        ASSERT_GT(done, 0);
        const int held = SaveNumber(path);
        // The save that the kill met may have got there as well.
        ASSERT_TRUE(held == next + done - 1 || held == next + done) << held << " after " << next + done;
        next += done + 1;
    }
    std::printf("%d saves, %d kills, %d files left behind\n", kSaves, kills,
                static_cast<int>(FilesIn(folder).size()) - 1);
}

TEST(Disk, ASaveTakesAwayWhatAKilledOneLeft)
{
    const QTemporaryDir folder;
    const auto make = [&](const char* name, int age) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFileDevice::FileModificationTime);
    };
    make(".rq5-save-AbCdEf", 3600);
    make(".rq5-save-others", 1);  // may be in use
    make("a.RQ5.backup", 3600);   // the user's own
    EXPECT_FALSE(SaveCloneFile(folder.filePath(QStringLiteral("a.RQ5")), StartUpImage(0)).problem);
    const QStringList expected = {QStringLiteral(".rq5-save-others"), QStringLiteral("a.RQ5"),
                                  QStringLiteral("a.RQ5.backup")};
    EXPECT_EQ(FilesIn(folder), expected);
}

/// Becomes somebody who may do less than the superuser, for whom no permission counts.
bool BecomeNobody()
{
    constexpr uid_t kNobody = 65534;
    return geteuid() != 0 || (setgid(kNobody) == 0 && setuid(kNobody) == 0);
}

TEST(Disk, PermissionsCount)
{
    constexpr auto kMayRead = QFileDevice::ReadOwner | QFileDevice::ReadOther;
    constexpr auto kMayEnter = kMayRead | QFileDevice::ExeOwner | QFileDevice::ExeOther;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.RQ5"));
    CloneImage image = NumberedImage(1);
    ASSERT_FALSE(SaveCloneFile(path, image).problem);
    const auto tryAsNobody = [&](const char* details, const auto& work) {
        const pid_t child = Fork([&] {
            const std::optional<Problem> problem = BecomeNobody() ? work() : std::nullopt;
            return problem && problem->details.English().find(details) != std::string::npos ? 0 : 1;
        });
        EXPECT_EQ(ExitStatus(child), 0) << details;
    };
    const auto save = [&] { return SaveCloneFile(path, image).problem; };
    const auto load = [&] { return LoadCloneFile(path, image); };

    QFile::setPermissions(folder.path(), kMayEnter | QFileDevice::WriteOther | QFileDevice::WriteOwner);
    QFile::setPermissions(path, kMayRead);
    tryAsNobody("permissions of the file", save);
    QFile::setPermissions(path, QFileDevice::WriteOwner | QFileDevice::WriteOther);
    tryAsNobody("permissions", load);
    QFile::setPermissions(path, kMayRead | QFileDevice::WriteOwner | QFileDevice::WriteOther);
    QFile::setPermissions(folder.path(), kMayEnter);
    tryAsNobody("permissions of the folder", save);
    QFile::setPermissions(folder.path(), kMayEnter | QFileDevice::WriteOwner);
    EXPECT_EQ(SaveNumber(path), 1);
    EXPECT_EQ(FilesIn(folder).size(), 1);
}

TEST(Disk, WhatHappensToTheFolderMeanwhileIsToldAndTheImageKept)
{
    const QTemporaryDir parent;
    const QDir dir(parent.path());
    const QString path = dir.filePath(QStringLiteral("folder/a.RQ5"));
    const CloneImage image = NumberedImage(1);
    for (const char* reason : {"does not exist", "this is a folder"}) {
        const std::optional<Problem> problem = SaveCloneFile(path, image).problem;
        EXPECT_TRUE(problem && problem->details.English().find(reason) != std::string::npos);
        ASSERT_TRUE(dir.mkpath(path));
    }
    ASSERT_TRUE(dir.rmdir(path));
    EXPECT_FALSE(SaveCloneFile(path, image).problem);
    EXPECT_EQ(SaveNumber(path), 1);
}

}  // namespace
}  // namespace rqm5
