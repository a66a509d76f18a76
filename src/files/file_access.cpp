#include "files/file_access.h"

#include <QFile>
#include <QFileInfo>

#include "files/access_list.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#endif

namespace rqm5 {

#ifdef Q_OS_UNIX
namespace {

#ifdef Q_OS_LINUX
constexpr char kListName[] = "system.posix_acl_access";

std::string AttributeOf(const char* path, const char* name)
{
    std::string value;
    for (ssize_t size = getxattr(path, name, nullptr, 0); size > 0;) {
        value.resize(static_cast<std::size_t>(size));
        size = getxattr(path, name, value.data(), value.size());
        if (size == static_cast<ssize_t>(value.size()))
            return value;
    }
    return {};
}

std::vector<std::string> AttributeNames(const char* path)
{
    std::string bytes;
    const ssize_t size = listxattr(path, nullptr, 0);
    bytes.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    const ssize_t read = bytes.empty() ? 0 : listxattr(path, bytes.data(), bytes.size());
    bytes.resize(read > 0 ? static_cast<std::size_t>(read) : 0);
    std::vector<std::string> names;
    for (std::size_t at = 0; at < bytes.size(); at += names.back().size() + 1)
        names.emplace_back(bytes.c_str() + at);
    return names;
}

std::optional<AccessList> ListOf(const char* path)
{
    return AccessList::Parse(AttributeOf(path, kListName));
}

/// \return false when the new file could not get the list
bool SetList(int descriptor, const AccessList& list)
{
    // The folder may have given the new file a list that the old one has not.
    if (!list.IsExtended())
        return fremovexattr(descriptor, kListName), true;
    const std::string bytes = list.Attribute();
    return fsetxattr(descriptor, kListName, bytes.data(), bytes.size(), 0) == 0;
}

/// What users and file systems keep beside a file. Labels and signatures of the system are its own matter,
/// but for the one label that says who may use the file.
void CarryAttributes(const char* path, int descriptor, std::vector<Message>& changes)
{
    for (const std::string& name : AttributeNames(path)) {
        const bool isSystem = name.starts_with("security.") || name.starts_with("trusted.");
        if (name == kListName || (isSystem && name != "security.selinux"))
            continue;
        const std::string value = AttributeOf(path, name.c_str());
        if (fsetxattr(descriptor, name.c_str(), value.data(), value.size(), 0) != 0 && !isSystem)
            changes.push_back({MESSAGE("the extended attribute %1 is gone"), {name}});
    }
}
#else
std::optional<AccessList> ListOf(const char* /*path*/)
{
    return std::nullopt;
}

bool SetList(int /*descriptor*/, const AccessList& list)
{
    return !list.IsExtended();
}

void CarryAttributes(const char* /*path*/, int /*descriptor*/, std::vector<Message>& /*changes*/) {}
#endif

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
    CarryAttributes(path.constData(), descriptor, changes);
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
#else
std::vector<Message> CarryAccess(const QString& oldFile, int /*descriptor*/)
{
    Q_UNUSED(oldFile)
    return {};
}

int NameCount(const QString& path)
{
    return QFileInfo::exists(path) ? 1 : 0;
}
#endif

}  // namespace rqm5
