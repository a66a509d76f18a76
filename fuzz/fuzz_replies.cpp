// What a receiver, or whatever else is on the line, may answer: both reply parsers, and the decoders that a
// block from the line goes through.

#include <cstdint>
#include <string_view>

#include "fuzz/image_checks.h"
#include "fuzz/require.h"
#include "image/channel_record.h"
#include "image/flag_bits.h"
#include "link/reply_frames.h"
#include "memory/bank_layout.h"

namespace rqm5::fuzz {
namespace {

constexpr int kRow = 7;

void CheckRecord(const MemoryBlock& block, RowKind kind)
{
    ChannelRecord decoded;
    if (!DecodeBlock(block, kind, decoded)) {
        Require(decoded.numbers == ChannelNumbers{} && decoded.texts == ChannelTexts{}, "empty is all empty");
        return;
    }
    const MemoryBlock encoded = EncodeNumbers(decoded.numbers);
    ChannelRecord again;
    Require(DecodeBlock(encoded, kind, again), "a channel stays a channel");
    Require(again.numbers == decoded.numbers, "numbers survive encoding and decoding");
    Require(again.texts == decoded.texts || kind == RowKind::Memory, "texts survive");
    Require(EncodeNumbers(again.numbers) == encoded, "an encoded block is stable");
}

void CheckFlagsAndBanks(const MemoryBlock& block, CloneImage& image)
{
    image.BankData.fill(block);
    DecodeBankData(image);
    RequireSoundImage(image);
    const auto sizes = image.BankSize;
    EncodeBankData(image);
    DecodeBankData(image);
    Require(image.BankSize == sizes, "bank sizes survive encoding and decoding");

    image.BankFlagData = block;
    DecodeBankFlagData(image);
    const auto links = image.BankLink;
    EncodeBankFlagData(image);
    DecodeBankFlagData(image);
    Require(image.BankLink == links, "links survive encoding and decoding");
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
    image.MemText[kRow][kNote] = "kept";
    const bool isChannel = DecodeMemoryBlock(image, std::string_view(reply), kRow);
    Require(isChannel == HasChannel(image, kRow), "an empty block clears its row");
    Require(image.MemText[kRow][kNote] == "kept", "a block brings no note");
    CheckFlagsAndBanks(block, image);
}

}  // namespace
}  // namespace rqm5::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    rqm5::fuzz::CheckReplies({reinterpret_cast<const char*>(data), size});
    return 0;
}
