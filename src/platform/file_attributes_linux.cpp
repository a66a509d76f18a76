#include "platform/file_attributes.h"

#include <sys/xattr.h>

namespace rqm5 {
namespace {

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

}  // namespace

std::optional<AccessList> ListOf(const char* path)
{
    return AccessList::Parse(AttributeOf(path, kListName));
}

bool SetList(int descriptor, const AccessList& list)
{
    // The folder may have given the new file a list that the old one has not.
    if (!list.IsExtended())
        return fremovexattr(descriptor, kListName), true;
    const std::string bytes = list.Attribute();
    return fsetxattr(descriptor, kListName, bytes.data(), bytes.size(), 0) == 0;
}

/// Labels and signatures of the system are its own matter, but for the one label that says who may use the
/// file.
std::vector<std::string> CarryAttributes(const char* path, int descriptor)
{
    std::vector<std::string> lost;
    for (const std::string& name : AttributeNames(path)) {
        const bool isSystem = name.starts_with("security.") || name.starts_with("trusted.");
        if (name == kListName || (isSystem && name != "security.selinux"))
            continue;
        const std::string value = AttributeOf(path, name.c_str());
        if (fsetxattr(descriptor, name.c_str(), value.data(), value.size(), 0) != 0 && !isSystem)
            lost.push_back(name);
    }
    return lost;
}

}  // namespace rqm5
