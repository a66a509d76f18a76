#pragma once

#include <string>
#include <vector>

#include "image/clone_image.h"
#include "image/memory_block.h"

namespace rqm5 {

/// The 64 KiB of a receiver, in blocks of 16 bytes. What nobody wrote holds "FF".
class ReceiverMemory
{
  public:
    ReceiverMemory() : blocks_(kBlocks, MemoryBlock(std::string(kBlockChars, 'F'))) {}

    /// The block that holds the byte at an address 0 to FFFF.
    const MemoryBlock& At(int address) const { return blocks_.at(Index(address)); }
    MemoryBlock& At(int address) { return blocks_.at(Index(address)); }

    friend bool operator==(const ReceiverMemory&, const ReceiverMemory&) = default;

  private:
    static constexpr std::size_t kBlocks = 0x10000 / kBlockBytes;

    static std::size_t Index(int address) { return static_cast<std::size_t>(address) / kBlockBytes; }

    std::vector<MemoryBlock> blocks_;
};

/// What a receiver holds after an image was written to it: its settings blocks (SetData1, SetData2) with
/// the count of Search Pass channels, banks, links, flags, Search Pass list, presets, VFO rows, channels.
ReceiverMemory MemoryFromImage(const CloneImage& image);

/// The image of a memory. Notes come from another image, where the row holds a channel.
CloneImage ImageFromMemory(const ReceiverMemory& memory, const CloneImage& notes);

}  // namespace rqm5
