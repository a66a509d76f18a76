#include "fuzz/image_checks.h"

#include <cstring>

#include "fuzz/require.h"
#include "memory/bank_layout.h"

namespace rqm5::fuzz {
namespace {

/// Calls take with the address and size of each part.
template <typename Take>
void ForEachPart(const CloneImage& image, Take take)
{
    take(&image, sizeof image);
    take(image.MemData.data(), image.MemData.size() * sizeof(ChannelNumbers));
    take(image.MemText.data(), image.MemText.size() * sizeof(ChannelTexts));
}

bool IsIn(int value, int lowest, int highest)
{
    return value >= lowest && value <= highest;
}

}  // namespace

void ImageBytes::Take(const CloneImage& image)
{
    bytes_.clear();
    ForEachPart(image, [this](const void* part, std::size_t size) {
        bytes_.append(static_cast<const char*>(part), size);
    });
}

bool ImageBytes::AreThoseOf(const CloneImage& image) const
{
    std::size_t at = 0;
    bool same = true;
    ForEachPart(image, [&](const void* part, std::size_t size) {
        same = same && std::memcmp(bytes_.data() + at, part, size) == 0;
        at += size;
    });
    return same;
}

bool ImageBytes::HoldRow(const CloneImage& image, std::size_t row) const
{
    const auto isSame = [this](std::size_t at, const void* part, std::size_t size) {
        return std::memcmp(bytes_.data() + at, part, size) == 0;
    };
    const std::size_t numbersAt = sizeof image;
    const std::size_t textsAt = numbersAt + kMemoryRows * sizeof(ChannelNumbers);
    return isSame(numbersAt + row * sizeof(ChannelNumbers), &image.MemData[row], sizeof(ChannelNumbers)) &&
           isSame(textsAt + row * sizeof(ChannelTexts), &image.MemText[row], sizeof(ChannelTexts));
}

bool IsPicked(std::string_view input, std::uint32_t oneIn)
{
    // FNV-1a
    std::uint32_t hash = 2166136261U;
    for (const char c : input)
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return hash % oneIn == 0;
}

void RequireSoundSettings(const ReceiverSettings& settings)
{
    const int mode = settings.operatingMode;
    Require(mode == 0 || mode == 1 || mode == 11 || mode == ReceiverSettings::kNoOption, "operating mode");
    const bool isInRange =
        IsIn(settings.model, 0, 4) && IsIn(settings.volume, 0, 50) && IsIn(settings.squelch, 0, 9) &&
        IsIn(settings.lamp, 0, 2) && IsIn(settings.autoPowerOff, 0, 3) && IsIn(settings.bugLevel, 0, 4) &&
        IsIn(settings.scanMode, 0, 1) && IsIn(settings.keyFunction, 0, 1) && IsIn(settings.moniKey, 0, 1);
    Require(isInRange, "settings stay in their ranges");
}

void RequireSoundImage(const CloneImage& image)
{
    RequireSoundSettings(image.Settings);
    for (const int size : image.BankSize)
        Require(size >= 0, "no bank size is negative");
    Require(TotalBankSize(image) <= kBankRows, "bank sizes never exceed 1000");
    Require(image.MemData.size() == kMemoryRows && image.MemText.size() == kMemoryRows, "rows stay");
}

}  // namespace rqm5::fuzz
