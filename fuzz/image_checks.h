#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "image/clone_image.h"

namespace rqm5::fuzz {

/// The bytes of an image's numbers, texts, flags and blocks as they lie in memory: equal before and after
/// means that nothing was even assigned. Far cheaper than comparing contents.
class ImageBytes
{
  public:
    explicit ImageBytes(const CloneImage& image) { Take(image); }
    void Take(const CloneImage& image);
    bool AreThoseOf(const CloneImage& image) const;

    /// True when a memory row's numbers and texts are as they were.
    bool HoldRow(const CloneImage& image, std::size_t row) const;

  private:
    std::string bytes_;
};

/// Ends the program when an image breaks a rule that no input may break: every setting and bank size in
/// range, the banks within 1000 channels.
void RequireSoundImage(const CloneImage& image);

/// Ends the program when the settings are out of their ranges.
void RequireSoundSettings(const ReceiverSettings& settings);

/// Picks one input of so many for a costly check, the same ones in every run.
bool IsPicked(std::string_view input, std::uint32_t oneIn);

}  // namespace rqm5::fuzz
