#pragma once

#include <string>
#include <string_view>

#include "image/clone_image.h"

namespace rqm5 {

/// One channel or VFO row: nine numbers and ten texts (the note is not part of a block).
struct ChannelRecord
{
    ChannelNumbers numbers{};
    ChannelTexts texts{};
};

enum class RowKind { Memory, Vfo };

/// Decodes one block of 16 bytes into numbers and display texts; never fails.
///
/// Layout: bytes 0-4 frequency as 4 + 6 decimal digits, then mode, step, option, secret code, carrier
/// code, tone, shift direction, and bytes 12-15 the shift frequency as 2 + 6 decimal digits. Values
/// outside their range become 0. The note is left empty.
///
/// \return false for an empty block (it holds "FFFF" anywhere, or its frequency is 0); record is then
///         all zero and empty
bool DecodeBlock(const MemoryBlock& block, RowKind kind, ChannelRecord& record);

/// Decodes a block into memory row 0 to 1239. The row's note and enabled flag stay as they are.
/// \return true for a channel, false for an empty block (the row's columns 0 to 8 are then cleared)
bool DecodeMemoryBlock(CloneImage& image, const MemoryBlock& block, int row);

/// The same for a VFO row 0 to 13.
bool DecodeVfoBlock(CloneImage& image, const MemoryBlock& block, int row);

/// The same from a reply line of the receiver, whose block begins at the third character.
bool DecodeMemoryBlock(CloneImage& image, std::string_view replyLine, int row);
bool DecodeVfoBlock(CloneImage& image, std::string_view replyLine, int row);

/// The block that a row's numbers make.
MemoryBlock EncodeMemoryRow(const CloneImage& image, int row);
MemoryBlock EncodeVfoRow(const CloneImage& image, int row);
MemoryBlock EncodeNumbers(const ChannelNumbers& numbers);

/// The text of a memory row's option value, which differs from the VFO table's: "OFF", "Scrt", "Carrier",
/// "Tone", "Rev.", and "None" from 80 on.
std::string_view MemoryOptionText(int value);

/// The block in a reply line: characters 3 to 34.
MemoryBlock BlockOfReply(std::string_view replyLine);

}  // namespace rqm5
