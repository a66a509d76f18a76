#include "files/csv_record.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "files/truth_words.h"
#include "image/number_text.h"
#include "image/value_tables.h"
#include "memory/channel_parts.h"

namespace rqm5 {
namespace {

constexpr std::int64_t kFrequencyLimit = 10000 * kHertzPerMegahertz;  ///< four digits before the point
constexpr std::int64_t kShiftLimit = 100 * kHertzPerMegahertz;        ///< two digits

constexpr int kOptionUnit = 16;
constexpr int kSkipBit = 8;

/// Whole hertz, nothing when a block could not hold them.
std::optional<std::int64_t> HertzBelow(std::int64_t limit, std::string_view text)
{
    const double hertz = std::round(ReadNumber(text) * static_cast<double>(kHertzPerMegahertz));
    const bool isHeld = hertz >= 0 && hertz < static_cast<double>(limit);
    return isHeld ? std::optional(static_cast<std::int64_t>(hertz)) : std::nullopt;
}

/// Nothing for an index that stands for none.
std::optional<std::int64_t> Found(int index, int unit = 1)
{
    return index < 0 ? std::nullopt : std::optional<std::int64_t>(index * unit);
}

std::optional<std::int64_t> StepCode(std::string_view text)
{
    // The steps between are set by the receiver alone and are not taken from a file.
    constexpr int kFirstUntaken = 14;
    constexpr int kLastUntaken = 18;
    const int step = IndexOf(StepName, text);
    return step >= kFirstUntaken && step <= kLastUntaken ? std::nullopt : Found(step);
}

std::optional<std::int64_t> SecretCode(std::string_view text)
{
    const int code = ReadInteger(text);
    return code < kSecretCodes ? Found(code) : std::nullopt;
}

std::optional<std::int64_t> CarrierCode(std::string_view text)
{
    if (text == "JR")
        return kCarrierJr;
    // Everything else reads and writes (code + 3) * 100, so an import moves each code up by one: the files
    // that owners keep count so.
    const int code = ReadInteger(text) / 100 - 2;
    return code < kCarrierJr ? Found(code) : std::nullopt;
}

std::optional<std::int64_t> ToneCode(std::string_view text)
{
    static const auto kTones = [] {
        std::array<double, ToneName.size()> tones{};
        std::transform(ToneName.begin(), ToneName.end(), tones.begin(), ReadNumber);
        return tones;
    }();
    const auto* found = std::find(kTones.begin(), kTones.end(), ReadNumber(text));
    return found == kTones.end() ? std::nullopt : Found(static_cast<int>(found - kTones.begin()));
}

int ShiftOf(std::string_view text)
{
    const std::string upper = UpperCase(text);
    return upper == "+SHIFT" ? 0x10 : upper == "-SHIFT" ? 0x20 : 0;
}

ChannelContents Imported(const CsvValues& values, bool isSkipped, const ChannelContents& previous)
{
    const auto value = [&](Column column) {
        return values.at(column).value_or(CsvValueOf(previous, column));
    };
    ChannelContents row;
    row.frequency = value(kFrequency);
    if (row.frequency == 0)
        return row;
    for (const CodeField& field : kCodeFields)
        row.*field.value = static_cast<std::uint8_t>(value(field.column));
    row.option = static_cast<std::uint8_t>(row.option + (isSkipped ? kSkipBit : 0));
    row.shiftFrequency = static_cast<std::int32_t>(value(kShiftFrequency));
    row.isCarrierImported = row.carrier != kCarrierJr;
    row.blank = 0;
    return row;
}

}  // namespace

std::string UpperCase(std::string_view text)
{
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return upper;
}

std::int64_t CsvValueOf(const ChannelContents& row, Column column)
{
    if (column == kFrequency)
        return row.frequency;
    if (column == kShiftFrequency)
        return row.shiftFrequency;
    const auto* field = std::ranges::find(kCodeFields, column, &CodeField::column);
    const int code = row.*field->value;
    return column == kOption ? code / kOptionUnit * kOptionUnit : code;
}

CsvValues ReadCsvValues(const CsvRecord& record)
{
    const auto& texts = record.texts;
    CsvValues values;
    values[kFrequency] = HertzBelow(kFrequencyLimit, texts[kFrequency]);
    values[kMode] = Found(IndexOf(ModeName, texts[kMode]));
    values[kStep] = StepCode(texts[kStep]);
    values[kOption] =
        Found(texts[kOption] == "Scrt" ? kSecretOption : IndexOf(OptionName, texts[kOption]), kOptionUnit);
    values[kSecret] = SecretCode(texts[kSecret]);
    values[kCarrier] = CarrierCode(texts[kCarrier]);
    values[kTone] = ToneCode(texts[kTone]);
    values[kShift] = ShiftOf(texts[kShift]);
    values[kShiftFrequency] = HertzBelow(kShiftLimit, texts[kShiftFrequency]);
    return values;
}

bool StoreRecord(const CsvRecord& record, const CsvValues& values, RowKind kind, Channel& row)
{
    const bool isSkipped = TruthOf(record.skip).value_or(false);
    static_cast<ChannelContents&>(row) = Imported(values, isSkipped, row);
    row.note = PlainNote(record.texts[kNote]);
    if (kind == RowKind::Memory)
        row.enabled = TruthOf(record.enable).value_or(false);
    return row.HasChannel() && values[kCarrier].value_or(kCarrierJr) != kCarrierJr;
}

}  // namespace rqm5
