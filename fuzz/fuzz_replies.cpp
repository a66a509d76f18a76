// What a receiver, or whatever else is on the line, may answer: both reply parsers, and the decoders that a
// block from the line goes through.

#include <cstdint>
#include <string_view>

#include "fuzz/image_checks.h"
#include "fuzz/require.h"
#include "image/channel_block.h"
#include "image/flag_bits.h"
#include "link/reply_frames.h"
#include "memory/bank_layout.h"

namespace rqm5::fuzz {
namespace {

constexpr int kRow = 7;

void CheckRecord(const MemoryBlock& block, RowKind kind)
{
    const auto decoded = DecodeBlock(block, kind);
    if (!decoded)
        return;
    const MemoryBlock encoded = EncodeChannel(*decoded);
    const auto again = DecodeBlock(encoded, kind);
    Require(again.has_value(), "a channel stays a channel");
    Require(*again == *decoded, "contents survive encoding and decoding");
    Require(EncodeChannel(*again) == encoded, "an encoded block is stable");
    for (const Column column : kColumns)
        Require(column == kNote || !CellText(*decoded, kind, kNoRegion, column).empty(), "no cell is blank");
}

void CheckFlagsAndBanks(const MemoryBlock& block, CloneImage& image)
{
    DecodeBankData(image, std::vector<MemoryBlock>(7, block));
    RequireSoundImage(image);
    const auto sizes = BankData(image);
    DecodeBankData(image, sizes);
    Require(BankData(image) == sizes, "bank sizes survive encoding and decoding");

    DecodeBankFlagData(image, block);
    const MemoryBlock links = BankFlagData(image);
    DecodeBankFlagData(image, links);
    Require(BankFlagData(image) == links, "links survive encoding and decoding");
}

void CheckReplies(std::string_view received)
{
    static CloneImage image;
    const std::string reply = ReadReply(received);
    const int answer = WriteReply(received);
    Require((answer == kWriteTooShort) == (received.size() < kAcknowledgementLength), "too short is said so");
    Require(answer != kWriteOk || EndsReply(received, kAcknowledgementLength), "OK ends in CR LF");
    if (reply == kReadTooShort || reply == kReadNoFrame)
        return;
    Require(reply.size() == kFrameLength && EndsReply(received, kFrameLength), "a frame has 36 characters");

    const MemoryBlock block = BlockOfReply(reply);
    CheckRecord(block, RowKind::Memory);
    CheckRecord(block, RowKind::Vfo);
    image.MemData(kRow).note = "kept";
    const bool isChannel = DecodeMemoryBlock(image, std::string_view(reply), kRow);
    Require(isChannel == image.MemData(kRow).HasChannel(), "an empty block clears its row");
    Require(image.MemData(kRow).note == "kept", "a block brings no note");
    CheckFlagsAndBanks(block, image);
}

}  // namespace
}  // namespace rqm5::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    rqm5::fuzz::CheckReplies({reinterpret_cast<const char*>(data), size});
    return 0;
}
