#include "platform/file_access.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <fstream>

#include "files/file_store.h"
#include "platform/access_list.h"

namespace rqm5 {
namespace {

constexpr char kList[] = "system.posix_acl_access";
constexpr std::uint32_t kNoId = 0xFFFFFFFF;

TEST(AccessList, NobodyGainsWhenOwnerOrGroupIsAnother)
{
    // What a new owner could do before is 4 in each case.
    const struct
    {
        unsigned mode;
        bool keepsOwner;
        bool keepsGroup;
        unsigned narrowed;
    } cases[] = {
        {0640, true, true, 0640},   {0640, true, false, 0600},  {0664, true, false, 0644},
        {0646, true, false, 0644},  {0660, false, true, 0460},  {0066, false, true, 0400},
        {0606, false, false, 0400}, {0666, false, false, 0466},
    };
    for (const auto& row : cases) {
        AccessList list = AccessList::OfMode(row.mode);
        list.Narrow(row.keepsOwner, row.keepsGroup, row.keepsOwner ? 6 : 4);
        EXPECT_EQ(list.Mode(), row.narrowed) << std::oct << row.mode << row.keepsOwner << row.keepsGroup;
    }
    // A group in the list that may do nothing keeps the members of the new group out as well.
    AccessList list{{{AccessList::kOwner, 6, kNoId},
                     {AccessList::kOwnGroup, 6, kNoId},
                     {AccessList::kGroup, 0, 77},
                     {AccessList::kMask, 6, kNoId},
                     {AccessList::kOther, 4, kNoId}}};
    const auto parsed = AccessList::Parse(list.Attribute());
    ASSERT_TRUE(parsed && parsed->IsExtended());
    EXPECT_EQ(parsed->Attribute(), list.Attribute());
    list.Narrow(true, false, 6);
    EXPECT_EQ(list.entries[1].bits, 0);
    EXPECT_EQ(list.entries[4].bits, 4);
    EXPECT_FALSE(AccessList::Parse(std::string("\x01\x00\x00\x00", 4)));
}

class FileAccess : public testing::Test
{
  protected:
    FileAccess() { std::ofstream(path_.toStdString()) << "old"; }

    unsigned Mode() const
    {
        struct stat found = {};
        return stat(name_.c_str(), &found) == 0 ? found.st_mode & 07777U : 0;
    }

    std::string Attribute(const char* key) const
    {
        std::string value(100, '\0');
        const ssize_t size = getxattr(name_.c_str(), key, value.data(), value.size());
        return value.substr(0, size > 0 ? static_cast<std::size_t>(size) : 0);
    }

    bool Set(const std::string& path, const char* key, const std::string& value) const
    {
        return setxattr(path.c_str(), key, value.data(), value.size(), 0) == 0;
    }

    QTemporaryDir folder_;
    const QString path_ = folder_.filePath(QStringLiteral("a"));
    const std::string name_ = path_.toStdString();
    const std::string list_ = AccessList{
        {{AccessList::kOwner, 6, kNoId},
         {AccessList::kUser, 4, 33},
         {AccessList::kOwnGroup, 0, kNoId},
         {AccessList::kMask, 4, kNoId},
         {AccessList::kOther, 0,
          kNoId}}}.Attribute();
};

TEST_F(FileAccess, AccessListAndExtendedAttributesAreKept)
{
    if (!Set(name_, "user.colour", "blue") || !Set(name_, kList, list_))
        GTEST_SKIP() << "this file system has none";
    WriteReport report;
    EXPECT_FALSE(WriteWholeFile(path_, "new", &report));
    EXPECT_TRUE(report.accessChanges.empty()) << report.accessChanges.front().English();
    EXPECT_EQ(Attribute("user.colour"), "blue");
    EXPECT_EQ(Attribute(kList), list_);
    EXPECT_EQ(Mode(), 0640U);
}

TEST_F(FileAccess, AListOfTheFolderGivesNobodyTheFile)
{
    chmod(name_.c_str(), 0640);
    if (!Set(folder_.path().toStdString(), "system.posix_acl_default", list_))
        GTEST_SKIP() << "this file system has none";
    EXPECT_FALSE(WriteWholeFile(path_, "new"));
    EXPECT_EQ(Attribute(kList), "");
    EXPECT_EQ(Mode(), 0640U);
}

TEST_F(FileAccess, AnotherUsersFileOpensToNobodyElse)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can make another user's file";
    constexpr uid_t kNobody = 65534;
    const struct
    {
        gid_t group;
        unsigned mode;
        unsigned after;
        std::vector<std::string> changes;
    } cases[] = {
        {kNobody, 0660, 0660, {"the owner was 1234 and is nobody"}},
        {1235,
         0646,
         0644,
         {"the owner was 1234 and is nobody", "the group was 1235 and is nogroup",
          "the permissions were rw-r--rw- and are rw-r--r--"}},
    };
    chmod(folder_.path().toLocal8Bit(), 0777);
    for (const auto& row : cases) {
        ASSERT_EQ(chown(name_.c_str(), 1234, row.group), 0);
        chmod(name_.c_str(), row.mode);
        const pid_t child = fork();
        if (child == 0) {
            WriteReport report;
            const bool isNobody = setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0;
            const bool isWritten = isNobody && !WriteWholeFile(path_, "new", &report);
            // Names of users are those of this machine.
            _exit(isWritten && report.accessChanges.size() == row.changes.size() &&
                          report.accessChanges.front().English().starts_with("the owner was 1234 and is ") &&
                          (row.changes.size() == 1 || report.accessChanges.back() == row.changes.back())
                      ? 0
                      : 1);
        }
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
        EXPECT_EQ(Mode(), row.after);
    }
}

TEST_F(FileAccess, OwnerAndGroupStayWhereTheSystemLetsThem)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser may give files away";
    ASSERT_EQ(chown(name_.c_str(), 1234, 1235), 0);
    chmod(name_.c_str(), 0604);
    WriteReport report;
    EXPECT_FALSE(WriteWholeFile(path_, "new", &report));
    struct stat found = {};
    ASSERT_EQ(stat(name_.c_str(), &found), 0);
    EXPECT_TRUE(found.st_uid == 1234 && found.st_gid == 1235 && report.accessChanges.empty());
    EXPECT_EQ(Mode(), 0604U);
}

}  // namespace
}  // namespace rqm5
