// What a disk can refuse: each fault has its own true text, and says whether the new file is in place.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>

#include "files/file_store.h"
#include "memory/start_image.h"

namespace {

/// The errors of the calls that fail, 0 for those that work.
struct
{
    int flushFile = 0;
    int flushFolder = 0;
    int rename = 0;
    int link = 0;
    int read = 0;
    bool hasNoRoom = false;
    std::function<void()> afterRename = {};
} disk;

template <class Function>
Function* Real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

int Refused(int error)
{
    errno = error;
    return -1;
}

}  // namespace

// These stand before those of the system, for the program and its libraries alike.
extern "C" {
int fsync(int file)
{
    struct stat found = {};
    fstat(file, &found);
    const int error = S_ISDIR(found.st_mode) ? disk.flushFolder : disk.flushFile;
    return error != 0 ? Refused(error) : Real<int(int)>("fsync")(file);
}

int rename(const char* from, const char* to) noexcept
{
    if (disk.rename != 0)
        return Refused(disk.rename);
    const int result = Real<int(const char*, const char*)>("rename")(from, to);
    if (disk.afterRename)
        disk.afterRename();
    return result;
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    using Linkat = int(int, const char*, int, const char*, int);
    return disk.link != 0 ? Refused(disk.link)
                          : Real<Linkat>("linkat")(fromFolder, from, toFolder, to, flags);
}

ssize_t read(int file, void* buffer, std::size_t size)
{
    return disk.read != 0 ? Refused(disk.read)
                          : Real<ssize_t(int, void*, std::size_t)>("read")(file, buffer, size);
}

int statvfs64(const char* path, struct statvfs64* found) noexcept
{
    const int result = Real<int(const char*, struct statvfs64*)>("statvfs64")(path, found);
    if (disk.hasNoRoom)
        found->f_bavail = 1;
    return result;
}
}

namespace rqm5 {
namespace {

class FailingDisk : public testing::Test
{
  protected:
    FailingDisk() { std::ofstream(path_.toStdString()) << "old"; }
    ~FailingDisk() override { disk = {}; }

    SaveOutcome Save() { return SaveCloneFile(path_, image_); }

    bool HoldsOld() const { return MarkOfFile(path_) == MarkOf("old"); }

    QTemporaryDir folder_;
    const QString path_ = folder_.filePath(QStringLiteral("a.RQ5"));
    const CloneImage image_ = StartUpImage(0);
};

void ExpectProblem(const std::optional<Problem>& problem, const char* text, const char* part)
{
    ASSERT_TRUE(problem) << part;
    const std::string details = problem->details.English();
    EXPECT_EQ(problem->text, text);
    EXPECT_NE(details.find(part), std::string::npos) << details;
    const bool blamesTheDisk = details.find("disk may be failing") != std::string::npos;
    EXPECT_TRUE(!blamesTheDisk || details.find("nput/output") != std::string::npos)
        << "only what the disk reports is blamed on it: " << details;
}

TEST_F(FailingDisk, SaysWhatWasRefusedAndLeavesTheOldFile)
{
    const std::tuple<int*, int, const char*> cases[] = {
        {&disk.flushFile, EIO, "Input/output error; nothing was changed. The disk may be failing"},
        {&disk.flushFile, ENOSPC, "nothing was changed. Free some space"},
        {&disk.rename, EXDEV, "nothing was changed. Save in another folder"},
        {&disk.rename, EPERM, "permissions of the folder"},
        {&disk.link, EPERM, "the new file gets no name here"},
    };
    for (const auto& [call, error, details] : cases) {
        disk = {};
        *call = error;
        const SaveOutcome outcome = Save();
        ExpectProblem(outcome.problem, kFileOpenError, details);
        EXPECT_TRUE(HoldsOld() && outcome.mark.isEmpty()) << details;
        EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }
    disk = {};
    disk.flushFile = EINVAL;  // a file system that cannot flush
    EXPECT_FALSE(Save().problem);
}

TEST_F(FailingDisk, SaysThatTheNewFileIsInPlaceWhenItIs)
{
    disk.flushFolder = EIO;
    const SaveOutcome flushed = Save();
    ExpectProblem(flushed.problem, kFileOpenError, "the new file is in place");
    EXPECT_TRUE(!flushed.mark.isEmpty() && flushed.mark == MarkOfFile(path_));

    disk = {};
    disk.read = EIO;
    const SaveOutcome unread = Save();
    disk = {};
    ExpectProblem(unread.problem, kFileOpenError, "The new file is in place");
    EXPECT_EQ(unread.mark, MarkOfFile(path_));
}

TEST_F(FailingDisk, ASaveOfAnotherProgramInBetweenIsNotTheDisk)
{
    for (const bool replaces : {true, false}) {
        disk.afterRename = [&] {
            disk.afterRename = {};
            if (replaces)
                QFile::remove(path_);
            std::ofstream(path_.toStdString()) << "of another program";
        };
        const SaveOutcome outcome = Save();
        ExpectProblem(outcome.problem, kDataError, "another program wrote this file");
        EXPECT_TRUE(outcome.mark.isEmpty());
        EXPECT_EQ(MarkOfFile(path_), MarkOf("of another program"));
    }
}

TEST_F(FailingDisk, RoomIsLookedForBeforeALongRead)
{
    EXPECT_FALSE(ReadingObstacle(path_));
    disk.hasNoRoom = true;
    ExpectProblem(ReadingObstacle(path_), kFileOpenError, "KiB are free on the disk");
}

TEST_F(FailingDisk, ASaveGivesBackItsDescriptors)
{
    const auto open = [] {
        return std::distance(begin(std::filesystem::directory_iterator("/proc/self/fd")), {});
    };
    EXPECT_FALSE(Save().problem);
    const auto before = open();
    for (int i = 0; i < 5; ++i)
        EXPECT_FALSE(Save().problem);
    EXPECT_EQ(open(), before);
}

}  // namespace
}  // namespace rqm5
