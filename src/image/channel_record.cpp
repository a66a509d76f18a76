#include "image/channel_record.h"

#include <algorithm>
#include <span>

#include "image/number_text.h"

namespace rqm5 {
namespace {

/// A field of one byte whose text is an entry of a table or a number.
struct ByteField
{
    Column column;
    std::size_t byte;
    int highestMemory;  ///< larger values become 0; 255 where nothing is checked
    int highestVfo;
};

constexpr ByteField kByteFields[] = {
    {kMode, 5, 2, 2},      {kStep, 6, 18, 19},  {kOption, 7, 255, 64}, {kSecret, 8, 16, 16},
    {kCarrier, 9, 28, 28}, {kTone, 10, 38, 38}, {kShift, 11, 255, 32},
};

std::string_view LeadingDigits(std::string_view text)
{
    const auto* end = std::find_if(text.begin(), text.end(), [](char c) { return c < '0' || c > '9'; });
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

std::string ShiftText(int value, RowKind kind)
{
    // A VFO row goes by the high nibble, a memory row by the exact value.
    const bool known = kind == RowKind::Vfo || value % 16 == 0;
    const std::string_view text = known ? TextAt(ShiftName, value / 16) : std::string_view();
    return std::string(text.empty() ? ShiftName[0] : text);
}

std::string FieldText(Column column, int value, RowKind kind)
{
    switch (column) {
        case kMode:
            return std::string(TextAt(ModeName, value));
        case kStep:
            return std::string(TextAt(StepName, value));
        case kOption:
            return std::string(kind == RowKind::Vfo ? TextAt(OptionName, value / 16)
                                                    : MemoryOptionText(value));
        case kCarrier:
            return CarrierText(value);
        case kTone:
            return std::string(TextAt(ToneName, value));
        case kShift:
            return ShiftText(value, kind);
        default:
            return std::to_string(value);
    }
}

int StoredValue(Column column, int value, RowKind kind)
{
    // Of a memory row's option byte only the option and the skip bit survive.
    if (column == kOption && kind == RowKind::Memory)
        return value / 16 * 16 + (value % 16 >= 8 ? 8 : 0);
    return value;
}

void DecodeFields(const MemoryBlock& block, RowKind kind, ChannelRecord& record)
{
    for (const ByteField& field : kByteFields) {
        const int highest = kind == RowKind::Memory ? field.highestMemory : field.highestVfo;
        const int read = block.Byte(field.byte);
        const int value = read > highest ? 0 : read;
        record.texts[field.column] = FieldText(field.column, value, kind);
        record.numbers[field.column] = StoredValue(field.column, value, kind);
    }
}

double DecodeFrequency(std::string_view text)
{
    const int whole = ReadInteger(LeadingDigits(text.substr(0, 4)));
    return ReadNumber(std::to_string(whole) + "." + std::string(LeadingDigits(text.substr(4, 6))));
}

double DecodeShiftFrequency(std::string_view text)
{
    // The fraction loses its leading zeros here (0.050000 reads back as 0.5); receivers in the field and
    // every saved file rely on it.
    const int whole = ReadInteger(LeadingDigits(text.substr(24, 2)));
    const int fraction = ReadInteger(LeadingDigits(text.substr(26, 6)));
    return ReadNumber(std::to_string(whole) + "." + std::to_string(fraction));
}

bool IsEmptyBlock(std::string_view text)
{
    // Most rows of most receivers are empty; their digits need no reading.
    return text.starts_with("0000000000") || text.find("FFFF") != std::string_view::npos ||
           DecodeFrequency(text) == 0;
}

/// Decodes a block that is not empty.
ChannelRecord DecodeChannel(const MemoryBlock& block, RowKind kind)
{
    ChannelRecord record;
    const double frequency = DecodeFrequency(block.Text());
    record.numbers[kFrequency] = frequency;
    record.texts[kFrequency] = FormatMegahertz(frequency);
    DecodeFields(block, kind, record);
    const double shift = DecodeShiftFrequency(block.Text());
    record.numbers[kShiftFrequency] = shift;
    record.texts[kShiftFrequency] = FormatMegahertz(shift);
    return record;
}

/// The note behind the nine texts stays.
bool DecodeRow(const MemoryBlock& block, RowKind kind, ChannelNumbers& numbers, ChannelTexts& texts)
{
    const auto note = texts.begin() + kNumberColumns;
    if (IsEmptyBlock(block.Text())) {
        numbers = {};
        std::for_each(texts.begin(), note, [](std::string& text) { text.clear(); });
        return false;
    }
    ChannelRecord record = DecodeChannel(block, kind);
    numbers = record.numbers;
    std::move(record.texts.begin(), record.texts.begin() + kNumberColumns, texts.begin());
    return true;
}

}  // namespace

std::string_view MemoryOptionText(int value)
{
    constexpr std::array<std::string_view, 5> kTexts = {"OFF", "Scrt", "Carrier", "Tone", "Rev."};
    const int option = value / 16;
    return option < static_cast<int>(kTexts.size()) ? TextAt(kTexts, option) : "None";
}

bool DecodeBlock(const MemoryBlock& block, RowKind kind, ChannelRecord& record)
{
    const bool isChannel = !IsEmptyBlock(block.Text());
    record = isChannel ? DecodeChannel(block, kind) : ChannelRecord{};
    return isChannel;
}

bool DecodeMemoryBlock(CloneImage& image, const MemoryBlock& block, int row)
{
    const auto index = static_cast<std::size_t>(row);
    return DecodeRow(block, RowKind::Memory, image.MemData.at(index), image.MemText.at(index));
}

bool DecodeVfoBlock(CloneImage& image, const MemoryBlock& block, int row)
{
    const auto index = static_cast<std::size_t>(row);
    return DecodeRow(block, RowKind::Vfo, image.VFOData.at(index), image.VFOText.at(index));
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

MemoryBlock EncodeNumbers(const ChannelNumbers& numbers)
{
    std::string text = PackedDigits(numbers[kFrequency], 4);
    for (std::size_t column = kMode; column <= kShift; ++column)
        text += HexByte(static_cast<int>(numbers[column]));
    return MemoryBlock(text + PackedDigits(numbers[kShiftFrequency], 2));
}

MemoryBlock EncodeMemoryRow(const CloneImage& image, int row)
{
    return EncodeNumbers(image.MemData.at(static_cast<std::size_t>(row)));
}

MemoryBlock EncodeVfoRow(const CloneImage& image, int row)
{
    return EncodeNumbers(image.VFOData.at(static_cast<std::size_t>(row)));
}

}  // namespace rqm5
