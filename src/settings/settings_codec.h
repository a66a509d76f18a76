#pragma once

#include "image/clone_image.h"

namespace rqm5 {

/// Checks and repairs SetData1 and SetData2 and takes every setting from them into Settings.
///
/// Never refuses: a wrong block marker replaces the first block by the default of the selected model, an
/// invalid byte is replaced in the block by its repair value.
void DecodeSettings(CloneImage& image);

/// Rebuilds SetData1 and SetData2 from Settings.
void EncodeSettings(CloneImage& image);

/// The default first block for a model option: region byte 0, 1 or 2 for these options, 3 for any other.
MemoryBlock DefaultSetData1(int model);

MemoryBlock DefaultSetData2();

/// Both blocks to their defaults for the selected model, and decoded.
void ResetSettings(CloneImage& image);

}  // namespace rqm5
