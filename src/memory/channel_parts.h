#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "image/clone_image.h"

namespace rqm5 {

/// What of a channel can be copied by itself: its columns, and the two marks that share a place with others.
enum ChannelPart { kSkipPart = kTextColumns, kEnabledPart, kChannelParts };

/// A set of columns and marks.
class Parts
{
  public:
    constexpr Parts() = default;
    constexpr Parts(std::initializer_list<int> parts)
    {
        for (const int part : parts)
            Add(part);
    }

    static constexpr Parts All()
    {
        Parts all;
        for (int part = 0; part < kChannelParts; ++part)
            all.Add(part);
        return all;
    }

    constexpr void Add(int part) { bits_ |= 1U << part; }
    constexpr bool Has(int part) const { return (bits_ >> part & 1U) != 0; }
    constexpr bool IsEmpty() const { return bits_ == 0; }
    constexpr Parts And(Parts other) const
    {
        other.bits_ &= bits_;
        return other;
    }

    friend bool operator==(const Parts&, const Parts&) = default;

  private:
    std::uint32_t bits_ = 0;
};

/// What a part is called in sentences, the id of a message: as its column, "Skip" or "Enabled".
const char* PartName(int part);

/// Copies chosen parts; the rest of the other channel stays as it is.
void CopyParts(const Channel& from, Parts parts, Channel& to);

/// A channel as the receiver comes with it on that frequency: the mode, step and codes of the VFO band of the
/// selected model region that holds it; on.
Channel NewChannel(const CloneImage& image, std::int64_t hertz);

/// A note as it is kept: one line without control characters.
std::string PlainNote(std::string_view text);

}  // namespace rqm5
