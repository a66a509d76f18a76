#pragma once

#include "image/clone_image.h"

namespace rqm5 {

/// Where the receiver keeps what: addresses of first blocks. Blocks follow each other 16 bytes apart.
inline constexpr int kSettings1Address = 0x0040;
inline constexpr int kSettings2Address = 0x0050;
inline constexpr int kBankAddress = 0x00C0;
inline constexpr int kFlagAddress = 0x01C0;
inline constexpr int kLinkAddress = 0x0260;
inline constexpr int kPassAddress = 0x0280;
inline constexpr int kPresetAddress = 0x0560;
inline constexpr int kVfoAddress = 0x0C00;
inline constexpr int kChannelAddress = 0x1000;

/// The byte of the second settings block that counts the enabled Search Pass channels.
inline constexpr int kPassCountByte = 2;

/// The address of a block in a row of blocks.
constexpr int BlockAddress(int first, int index)
{
    return first + index * 0x10;
}

/// The memory row 0 to 1209 whose block has this address, -1 for any other block.
constexpr int MemoryRowAt(int address)
{
    const int row = (address - kChannelAddress) / static_cast<int>(kBlockBytes);
    return address >= kChannelAddress && row < kRadioRows ? row : -1;
}

}  // namespace rqm5
