#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "image/clone_image.h"
#include "image/memory_block.h"
#include "language/message.h"

namespace rqm5 {

/// The parts of the receiver's memory, by rising address.
enum class Area { Settings, BankSizes, Flags, Links, PassList, Presets, Vfo, Channels };

/// What lies where: blocks of 16 bytes that follow each other, what people call them, and what they are in an
/// image.
struct MemoryArea
{
    Area id;
    int address;  ///< of the first block
    int blocks;

    /// In what a write tells: "VFO band 3", "VFO bands 3 to 5", "VFO bands". A single block goes by `many`.
    const char* one;
    const char* many;
    int firstNumber;

    /// A block in a list of differences: "Settings 1", "Row 1105 (Search Pass S5)".
    Message (*label)(const CloneImage& image, int index);

    /// A block in a sentence: "settings 1", "memory row 12 (Bank 0, channel 12)".
    Message (*meaning)(const CloneImage& image, int index);

    /// The block that an image makes.
    MemoryBlock (*encode)(const CloneImage& image, int index);

    /// Takes blocks from `first` on into an image. Null where the image holds nothing of them.
    void (*decode)(CloneImage& image, int first, std::span<const MemoryBlock> blocks);

    /// Where one block alone means something; the other areas are decoded when all their blocks have arrived.
    bool decodesSingly;

    /// The blocks hold a channel or VFO row.
    std::optional<RowKind> rows;

    int AddressOf(int index) const { return address + index * kBlockBytes; }
};

/// Every area, in the order of Area.
std::span<const MemoryArea> MemoryMap();

const MemoryArea& AreaOf(Area id);

/// The blocks of an area that an image has: all, but for the presets, which go by the model.
std::vector<int> BlocksOf(const MemoryArea& area, const CloneImage& image);

/// A block of an area, counted from 0.
struct BlockPlace
{
    const MemoryArea* area;
    int index;
};

/// What has this address; nothing where no area reaches.
std::optional<BlockPlace> PlaceOf(int address);

/// The memory row 0 to 1209 whose block has this address, -1 for any other block.
int MemoryRowAt(int address);

/// The second settings block, by its place, and the byte of it that counts the enabled Search Pass channels.
inline constexpr int kSettings2 = 1;
inline constexpr int kPassCountByte = 2;

/// What the receiver keeps at a block address: "settings 1", "bank sizes", "VFO row 3", ... Empty where
/// nothing is known. Banks are divided as the image says.
Message BlockName(const CloneImage& image, int address);

struct BlockField
{
    Message name;
    Message text;
};

/// The decoded fields of a channel or VFO block, in the order of the tables. None for any other address,
/// and none for an empty block.
std::vector<BlockField> BlockFields(int address, const MemoryBlock& block);

/// True when the address is that of a channel or a VFO row, whose blocks decode into fields.
bool HoldsFields(int address);

}  // namespace rqm5
