#include "platform/file_access.h"

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

#include "platform/file_attributes.h"

namespace rqm5 {
namespace {

AccessBits OwnAccess(const char* path)
{
    const auto may = [path](int mode) { return faccessat(AT_FDCWD, path, mode, AT_EACCESS) == 0; };
    return static_cast<AccessBits>((may(R_OK) ? 4 : 0) | (may(W_OK) ? 2 : 0));
}

std::string UserName(uid_t id)
{
    const passwd* user = getpwuid(id);
    return user != nullptr ? user->pw_name : std::to_string(id);
}

std::string GroupName(gid_t id)
{
    const group* found = getgrgid(id);
    return found != nullptr ? found->gr_name : std::to_string(id);
}

/// "rw-r-----"
std::string ModeText(unsigned mode)
{
    std::string text = "rwxrwxrwx";
    for (std::size_t i = 0; i < text.size(); ++i)
        if ((mode >> (text.size() - 1 - i) & 1U) == 0)
            text[i] = '-';
    return text;
}

void Compare(const struct stat& before, const struct stat& now, std::vector<Message>& changes)
{
    const auto tell = [&changes](const char* text, const std::string& was, const std::string& is) {
        if (was != is)
            changes.push_back({text, {was, is}});
    };
    tell(MESSAGE("the owner was %1 and is %2"), UserName(before.st_uid), UserName(now.st_uid));
    tell(MESSAGE("the group was %1 and is %2"), GroupName(before.st_gid), GroupName(now.st_gid));
    tell(MESSAGE("the permissions were %1 and are %2"), ModeText(before.st_mode), ModeText(now.st_mode));
}

}  // namespace

std::vector<Message> CarryAccess(const QString& oldFile, int descriptor)
{
    std::vector<Message> changes;
    const QByteArray path = QFile::encodeName(oldFile);
    struct stat old = {};
    struct stat now = {};
    if (stat(path.constData(), &old) != 0)
        return changes;
    if (fchown(descriptor, old.st_uid, old.st_gid) != 0) [[maybe_unused]]
        const int refused = fchown(descriptor, static_cast<uid_t>(-1), old.st_gid);
    if (fstat(descriptor, &now) != 0)
        return changes;
    const bool keepsOwner = now.st_uid == old.st_uid;
    const bool keepsGroup = now.st_gid == old.st_gid;
    for (const std::string& name : CarryAttributes(path.constData(), descriptor))
        changes.push_back({MESSAGE("the extended attribute %1 is gone"), {name}});
    AccessList list = ListOf(path.constData()).value_or(AccessList::OfMode(old.st_mode));
    list.Narrow(keepsOwner, keepsGroup, OwnAccess(path.constData()));
    unsigned mode = list.Mode();
    if (!SetList(descriptor, list)) {
        // An entry may have kept somebody out, so without the list the file is its owner's alone.
        changes.emplace_back(MESSAGE("the access list is gone"));
        mode &= 0700;
    }
    // A file system that cannot do this tells all files the same permissions.
    [[maybe_unused]] const int refused = fchmod(descriptor, static_cast<mode_t>(mode));
    if (fstat(descriptor, &now) == 0)
        Compare(old, now, changes);
    return changes;
}

int NameCount(const QString& path)
{
    struct stat file = {};
    return stat(QFile::encodeName(path).constData(), &file) == 0 ? static_cast<int>(file.st_nlink) : 0;
}

}  // namespace rqm5
