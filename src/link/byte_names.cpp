#include "link/byte_names.h"

#include <utility>
#include <vector>

#include "link/memory_map.h"
#include "settings/setting_texts.h"
#include "settings/settings_codec.h"

namespace rqm5 {
namespace {

constexpr int kBitsOfAByte = 8;
constexpr int kFlagBytes = 7;  ///< of the links; what follows them is filled up
constexpr char kFixed[] = "fixed";

std::string Joined(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text.empty() ? kFixed : text;
}

/// "row 7", "rows 0 to 3, 5": the flags of these bits, the first of the byte having this number.
std::string Flags(const std::string& noun, int first, int end, int bits)
{
    std::vector<std::string> runs;
    int count = 0;
    for (int bit = 0; bit < kBitsOfAByte; ++bit) {
        const auto isSet = [&](int place) {
            return place < kBitsOfAByte && (bits & (0x80 >> place)) != 0 && first + place < end;
        };
        if (!isSet(bit))
            continue;
        const int begin = bit;
        while (isSet(bit + 1))
            ++bit;
        count += bit - begin + 1;
        runs.push_back(std::to_string(first + begin) +
                       (bit > begin ? " to " + std::to_string(first + bit) : std::string()));
    }
    return runs.empty() ? kFixed : noun + (count > 1 ? "s " : " ") + Joined(runs);
}

std::string SettingsByte(int index, int byte, int bits)
{
    std::vector<std::string> names;
    for (const int setting : SettingsIn(index + 1, byte, bits))
        names.push_back(setting < kSettingsInWords ? SettingCaption(setting).English() : "Search Pass count");
    return Joined(names);
}

std::string BankSizesByte(int index, int byte)
{
    const int bank = (index * kBlockBytes + byte) / 2;
    if (bank > kUnassigned)
        return kFixed;
    return bank == kUnassigned ? "channels in no bank" : "size of bank " + std::to_string(bank);
}

std::string PassListByte(int index, int byte)
{
    const int place = index * kBlockBytes + byte;
    return place < kSearchPass.rows.count ? "place " + std::to_string(place + 1) + " of the list" : kFixed;
}

std::string ChannelByte(int byte, int bits)
{
    constexpr int kFirstCode = 5;
    constexpr int kFirstShift = kFirstCode + static_cast<int>(kCodeFields.size());
    const auto name = [](Column column) { return std::string(kColumnNames.at(column)); };
    if (byte < kFirstCode)
        return name(kFrequency);
    if (byte >= kFirstShift)
        return name(kShiftFrequency);
    const Column column = kCodeFields.at(static_cast<std::size_t>(byte - kFirstCode)).column;
    if (column != kOption)
        return name(column);
    std::vector<std::string> names;
    if ((bits & 0xF0) != 0)
        names.push_back(name(kOption));
    if ((bits & 0x08) != 0)
        names.emplace_back("Skip");
    return Joined(names);
}

/// \param bits  those that differ
std::string ByteName(const BlockPlace& place, int byte, int bits)
{
    const int index = place.index;
    switch (place.area->id) {
        case Area::Settings:
            return SettingsByte(index, byte, bits);
        case Area::BankSizes:
            return BankSizesByte(index, byte);
        case Area::Flags:
            return Flags("row", (index * kBlockBytes + byte) * kBitsOfAByte, kMemoryRows, bits);
        case Area::Links:
            return byte < kFlagBytes ? Flags("bank", byte * kBitsOfAByte, kLinkFlags, bits) : kFixed;
        case Area::PassList:
            return PassListByte(index, byte);
        case Area::Vfo:
        case Area::Channels:
            return ChannelByte(byte, bits);
        case Area::Presets:
            break;
    }
    return kFixed;
}

/// The bits of a byte that differ; all that count where the receiver sent no number.
int DifferingBits(const ExpectedBlock& expected, const MemoryBlock& read, int byte)
{
    const int mask = expected.mask.Byte(byte);
    return read.HasByte(byte) ? (expected.contents.Byte(byte) ^ read.Byte(byte)) & mask : mask;
}

/// Neighbours of one name, as far as they differ.
struct NamedBytes
{
    std::vector<int> bytes;
    std::string name;
};

std::string Text(const NamedBytes& named)
{
    const int first = named.bytes.front();
    const int last = named.bytes.back();
    const auto count = static_cast<int>(named.bytes.size());
    std::string text = (count == 1 ? "byte " : "bytes ") + std::to_string(first);
    if (count > 2 && last - first == count - 1)
        text += " to " + std::to_string(last);
    else
        for (int i = 1; i < count; ++i)
            text += ", " + std::to_string(named.bytes[static_cast<std::size_t>(i)]);
    return text + " (" + named.name + ")";
}

}  // namespace

std::string DifferingBytes(const ExpectedBlock& expected, const MemoryBlock& read)
{
    const auto place = PlaceOf(expected.address);
    std::vector<NamedBytes> runs;
    for (int byte = 0; place && byte < kBlockBytes; ++byte) {
        const int bits = DifferingBits(expected, read, byte);
        if (bits == 0)
            continue;
        std::string name = ByteName(*place, byte, bits);
        if (!runs.empty() && runs.back().name == name)
            runs.back().bytes.push_back(byte);
        else
            runs.push_back({{byte}, std::move(name)});
    }
    std::string text;
    for (const NamedBytes& run : runs)
        text += (text.empty() ? "" : ", ") + Text(run);
    return text;
}

}  // namespace rqm5
