#include "platform/access_list.h"

#include <algorithm>
#include <cstring>

namespace rqm5 {
namespace {

constexpr std::uint32_t kVersion = 2;
constexpr std::uint32_t kNoId = 0xFFFFFFFF;
constexpr AccessBits kAll = 7;
constexpr std::size_t kHeaderBytes = 4;
constexpr std::size_t kEntryBytes = 8;

/// Numbers are kept with the low byte first on every machine.
std::uint32_t Number(const char* bytes, int count)
{
    std::uint32_t value = 0;
    for (int i = count; i-- > 0;)
        value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return value;
}

void AddNumber(std::string& bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i, value >>= 8)
        bytes += static_cast<char>(value & 0xFF);
}

}  // namespace

AccessList AccessList::OfMode(unsigned mode)
{
    const auto bits = [mode](int shift) { return static_cast<AccessBits>(mode >> shift & kAll); };
    return {{{kOwner, bits(6), kNoId}, {kOwnGroup, bits(3), kNoId}, {kOther, bits(0), kNoId}}};
}

std::optional<AccessList> AccessList::Parse(const std::string& attribute)
{
    if (attribute.size() < kHeaderBytes || (attribute.size() - kHeaderBytes) % kEntryBytes != 0 ||
        Number(attribute.data(), 4) != kVersion)
        return std::nullopt;
    AccessList list;
    for (std::size_t at = kHeaderBytes; at < attribute.size(); at += kEntryBytes) {
        const char* entry = attribute.data() + at;
        list.entries.push_back({static_cast<std::uint16_t>(Number(entry, 2)),
                                static_cast<AccessBits>(Number(entry + 2, 2)), Number(entry + 4, 4)});
    }
    return list;
}

std::string AccessList::Attribute() const
{
    std::string bytes;
    AddNumber(bytes, kVersion, 4);
    for (const Entry& entry : entries) {
        AddNumber(bytes, entry.tag, 2);
        AddNumber(bytes, entry.bits, 2);
        AddNumber(bytes, entry.id, 4);
    }
    return bytes;
}

bool AccessList::IsExtended() const
{
    return entries.size() > 3;
}

AccessBits AccessList::BitsOf(Tag tag, AccessBits otherwise) const
{
    const auto found = std::ranges::find(entries, tag, &Entry::tag);
    return found != entries.end() ? found->bits : otherwise;
}

unsigned AccessList::Mode() const
{
    const AccessBits group = BitsOf(kMask, BitsOf(kOwnGroup, 0));
    return static_cast<unsigned>(BitsOf(kOwner, 0) << 6 | group << 3 | BitsOf(kOther, 0));
}

void AccessList::Narrow(bool keepsOwner, bool keepsGroup, AccessBits newOwner)
{
    const AccessBits owner = BitsOf(kOwner, 0);
    const AccessBits mask = BitsOf(kMask, kAll);
    const auto group = static_cast<AccessBits>(BitsOf(kOwnGroup, 0) & mask);
    const AccessBits other = BitsOf(kOther, 0);
    AccessBits namedGroups = kAll;
    for (const Entry& entry : entries)
        if (entry.tag == kGroup)
            namedGroups &= entry.bits;
    for (Entry& entry : entries) {
        // The members of the new group were others, or members of a group in the list; those of the old one
        // are others now.
        if (!keepsGroup && entry.tag == kOwnGroup)
            entry.bits = static_cast<AccessBits>(group & other & namedGroups);
        if (!keepsGroup && entry.tag == kOther)
            entry.bits &= group;
        // The old owner is now one of those that any other entry is about.
        if (!keepsOwner && entry.tag != kMask)
            entry.bits = entry.tag == kOwner ? newOwner : static_cast<AccessBits>(entry.bits & owner);
    }
}

}  // namespace rqm5
