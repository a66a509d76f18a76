#include "image/channel_block.h"

#include <algorithm>
#include <array>

#include "image/number_text.h"

namespace rqm5 {
namespace {

constexpr int kFirstCodeByte = 5;

/// The highest value of each code, in the order of kCodeFields; larger ones become 0. 255 where nothing is
/// checked.
struct Highest
{
    int memory;
    int vfo;
};

constexpr std::array<Highest, kCodeFields.size()> kHighest = {
    {{2, 2}, {18, 19}, {255, 64}, {16, 16}, {28, 28}, {38, 38}, {255, 32}}};

std::string_view LeadingDigits(std::string_view text)
{
    const auto* end = std::find_if(text.begin(), text.end(), [](char c) { return c < '0' || c > '9'; });
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

/// The number that leading digits make, of which there are six at most.
int NumberOf(std::string_view text)
{
    int number = 0;
    for (const char digit : LeadingDigits(text))
        number = number * 10 + (digit - '0');
    return number;
}

/// A number of MHz from its whole digits and those behind the point.
std::int64_t HertzOf(std::string_view whole, std::string_view fraction)
{
    std::int64_t hertz = NumberOf(whole) * kHertzPerMegahertz;
    std::int64_t unit = kHertzPerMegahertz;
    for (const char digit : LeadingDigits(fraction))
        hertz += (digit - '0') * (unit /= 10);
    return hertz;
}

std::int64_t DecodeFrequency(std::string_view text)
{
    return HertzOf(text.substr(0, 4), text.substr(4, 6));
}

std::int32_t DecodeShiftFrequency(std::string_view text)
{
    // The fraction loses its leading zeros here (0.050000 reads back as 0.5); receivers in the field and
    // every saved file rely on it.
    const std::string fraction = std::to_string(NumberOf(text.substr(26, 6)));
    return static_cast<std::int32_t>(HertzOf(text.substr(24, 2), fraction));
}

bool IsEmptyBlock(std::string_view text)
{
    // Most rows of most receivers are empty; their digits need no reading.
    return text.starts_with("0000000000") || text.find("FFFF") != std::string_view::npos ||
           DecodeFrequency(text) == 0;
}

bool DecodeRow(const MemoryBlock& block, RowKind kind, ChannelContents& row)
{
    const auto decoded = DecodeBlock(block, kind);
    row = decoded.value_or(ChannelContents{});
    return decoded.has_value();
}

}  // namespace

std::optional<ChannelContents> DecodeBlock(const MemoryBlock& block, RowKind kind)
{
    if (IsEmptyBlock(block.Text()))
        return std::nullopt;
    ChannelContents channel;
    channel.blank = 0;
    channel.frequency = DecodeFrequency(block.Text());
    channel.shiftFrequency = DecodeShiftFrequency(block.Text());
    for (std::size_t i = 0; i < kCodeFields.size(); ++i) {
        const int read = block.Byte(kFirstCodeByte + static_cast<int>(i));
        const int highest = kind == RowKind::Memory ? kHighest[i].memory : kHighest[i].vfo;
        channel.*kCodeFields[i].value = static_cast<std::uint8_t>(read > highest ? 0 : read);
    }
    // Of a memory row's option byte only the option and the skip bit survive.
    if (kind == RowKind::Memory)
        channel.option &= 0xF8;
    return channel;
}

bool DecodeMemoryBlock(CloneImage& image, const MemoryBlock& block, int row)
{
    return DecodeRow(block, RowKind::Memory, image.MemData(row));
}

bool DecodeVfoBlock(CloneImage& image, const MemoryBlock& block, int row)
{
    return DecodeRow(block, RowKind::Vfo, image.VFOData(row));
}

bool DecodeMemoryBlock(CloneImage& image, std::string_view replyLine, int row)
{
    return DecodeMemoryBlock(image, BlockOfReply(replyLine), row);
}

bool DecodeVfoBlock(CloneImage& image, std::string_view replyLine, int row)
{
    return DecodeVfoBlock(image, BlockOfReply(replyLine), row);
}

MemoryBlock BlockOfReply(std::string_view replyLine)
{
    return MemoryBlock(replyLine.substr(std::min<std::size_t>(2, replyLine.size())));
}

MemoryBlock EncodeChannel(const ChannelContents& channel)
{
    std::string text = PackedDigits(channel.frequency, 4);
    for (const CodeField& field : kCodeFields)
        text += HexByte(channel.*field.value);
    return MemoryBlock(text + PackedDigits(channel.shiftFrequency, 2));
}

MemoryBlock EncodeMemoryRow(const CloneImage& image, int row)
{
    return EncodeChannel(image.MemData(row));
}

MemoryBlock EncodeVfoRow(const CloneImage& image, int row)
{
    return EncodeChannel(image.VFOData(row));
}

}  // namespace rqm5
