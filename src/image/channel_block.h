#pragma once

#include <optional>
#include <string_view>

#include "image/clone_image.h"
#include "image/memory_block.h"

namespace rqm5 {

/// Decodes one block of 16 bytes.
///
/// Layout: bytes 0-4 frequency as 4 + 6 decimal digits, then mode, step, option, secret code, carrier
/// code, tone, shift direction, and bytes 12-15 the shift frequency as 2 + 6 decimal digits. Values
/// outside their range become 0.
///
/// \return nothing for an empty block: it holds "FFFF" anywhere, or its frequency is 0
std::optional<ChannelContents> DecodeBlock(const MemoryBlock& block, RowKind kind);

/// Decodes a block into memory row 0 to 1239. The row's note and enabled flag stay as they are.
/// \return true for a channel, false for an empty block (the row's contents are then cleared)
bool DecodeMemoryBlock(CloneImage& image, const MemoryBlock& block, int row);

/// The same for a VFO row 0 to 13.
bool DecodeVfoBlock(CloneImage& image, const MemoryBlock& block, int row);

/// The same from a reply line of the receiver, whose block begins at the third character.
bool DecodeMemoryBlock(CloneImage& image, std::string_view replyLine, int row);
bool DecodeVfoBlock(CloneImage& image, std::string_view replyLine, int row);

/// The block that a row makes.
MemoryBlock EncodeMemoryRow(const CloneImage& image, int row);
MemoryBlock EncodeVfoRow(const CloneImage& image, int row);
MemoryBlock EncodeChannel(const ChannelContents& channel);

/// The block in a reply line: characters 3 to 34.
MemoryBlock BlockOfReply(std::string_view replyLine);

}  // namespace rqm5
