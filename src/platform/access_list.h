#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace rqm5 {

/// Read 4, write 2, execute 1.
using AccessBits = std::uint16_t;

/// A POSIX access list as the system keeps it in an extended attribute. A file without one has the three
/// entries that its permissions make.
struct AccessList
{
    enum Tag : std::uint16_t { kOwner = 1, kUser = 2, kOwnGroup = 4, kGroup = 8, kMask = 16, kOther = 32 };
    struct Entry
    {
        std::uint16_t tag;
        AccessBits bits;
        std::uint32_t id;
    };
    std::vector<Entry> entries;

    static AccessList OfMode(unsigned mode);

    /// Nothing when the bytes are no list of the known version.
    static std::optional<AccessList> Parse(const std::string& attribute);
    std::string Attribute() const;

    /// True when permissions alone cannot say the same.
    bool IsExtended() const;

    /// The permissions that stand for it.
    unsigned Mode() const;

    /// Takes away what would give somebody more than before once the file has another owner or group.
    /// \param newOwner  what the new owner could do before
    void Narrow(bool keepsOwner, bool keepsGroup, AccessBits newOwner);

  private:
    AccessBits BitsOf(Tag tag, AccessBits otherwise) const;
};

}  // namespace rqm5
