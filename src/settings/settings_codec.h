#pragma once

#include <optional>
#include <vector>

#include "image/clone_image.h"
#include "image/memory_block.h"

namespace rqm5 {

/// The two settings blocks.
struct SettingsBlocks
{
    MemoryBlock SetData1;
    MemoryBlock SetData2;

    friend bool operator==(const SettingsBlocks&, const SettingsBlocks&) = default;
};

/// Takes every setting from the blocks.
///
/// Never refuses: a wrong block marker replaces the first block by the default of the model selected so far,
/// an invalid byte is replaced in the block by its repair value.
/// \return the blocks with what was repaired
SettingsBlocks DecodeSettings(CloneImage& image, SettingsBlocks blocks);

/// The blocks that the settings make.
MemoryBlock SetData1(const CloneImage& image);
MemoryBlock SetData2(const CloneImage& image);

/// The model that the first block names; nothing when it is no settings block or names none that is known.
std::optional<int> ModelOf(const MemoryBlock& SetData1);

/// The settings that are kept in these bits of a byte of a block, 1 or 2, by their place in kSettingFields.
std::vector<int> SettingsIn(int block, int byte, int bits);

/// The default first block for a model option: region byte 0, 1 or 2 for these options, 3 for any other.
MemoryBlock DefaultSetData1(int model);

MemoryBlock DefaultSetData2();

/// The settings to their defaults for the selected model.
void ResetSettings(CloneImage& image);

}  // namespace rqm5
