#include "link/closing_notes.h"

#include <algorithm>

namespace rqm5 {
namespace {

/// Nothing for none.
void AddCounted(std::vector<Message>& parts, std::size_t count, const char* one, const char* many)
{
    if (count > 0)
        parts.push_back(Counted(static_cast<int>(count), one, many));
}

Message ChannelsOn(const CloneImage& image)
{
    int channels = 0;
    for (int row = 0; row < kRadioRows; ++row)
        channels += image.MemEnable(row) ? 1 : 0;
    return Counted(channels, MESSAGE("1 channel on"), MESSAGE("%1 channels on"));
}

Message WhatChanged(const ImageChange& change)
{
    std::vector<Message> changed;
    AddCounted(changed, change.MemoryRows().size(), MESSAGE("1 row"), MESSAGE("%1 rows"));
    AddCounted(changed, change.BankSize.size(), MESSAGE("1 bank size"), MESSAGE("%1 bank sizes"));
    AddCounted(changed, change.BankLink.size(), MESSAGE("1 link"), MESSAGE("%1 links"));
    // The count of Search Pass channels follows from the rows; nobody has set it.
    const std::size_t counts = change.HasSetting(&ReceiverSettings::passCount) ? 1 : 0;
    AddCounted(changed, change.Settings.size() - counts, MESSAGE("1 setting"), MESSAGE("%1 settings"));
    AddCounted(changed, change.VfoRows().size(), MESSAGE("1 VFO band"), MESSAGE("%1 VFO bands"));
    if (changed.empty())
        return MESSAGE("nothing changed");
    return {MESSAGE("%1 changed"), {Message::List(std::move(changed), ", ")}};
}

/// Nothing takes no time.
std::string TookText(std::chrono::seconds took)
{
    return TimeText(std::max(took, std::chrono::seconds(1)));
}

}  // namespace

std::string TimeText(std::chrono::seconds time)
{
    const auto seconds = static_cast<int>(time.count() % 60);
    return std::to_string(time.count() / 60) + (seconds < 10 ? ":0" : ":") + std::to_string(seconds);
}

Message ReadNote(std::chrono::seconds took, bool isVerified, const TransferScope& scope,
                 const CloneImage& image, const ImageChange& change)
{
    std::vector<Message> parts;
    if (scope.memory)
        parts.push_back(ChannelsOn(image));
    parts.push_back(WhatChanged(change));
    return {isVerified ? MESSAGE("Read in %1 and verified: %2") : MESSAGE("Read in %1: %2"),
            {TookText(took), Message::List(std::move(parts), ", ")}};
}

Message WrittenNote(std::chrono::seconds took, bool isVerified)
{
    return {isVerified ? MESSAGE("Written in %1 and verified") : MESSAGE("Written in %1"), {TookText(took)}};
}

Message ComparedNote(std::chrono::seconds took, int differences)
{
    const std::string time = TookText(took);
    if (differences == 0)
        return {MESSAGE("Compared in %1: no block differs"), {time}};
    return {differences == 1 ? MESSAGE("Compared in %1: 1 block differs")
                             : MESSAGE("Compared in %1: %2 blocks differ"),
            {time, differences}};
}

}  // namespace rqm5
