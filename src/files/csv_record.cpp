#include "files/csv_record.h"

#include <algorithm>
#include <cmath>
#include <optional>

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

int StepOr(int previous, std::string_view text)
{
    // The steps between are set by the receiver alone and are not taken from a file.
    constexpr int kFirstUntaken = 14;
    constexpr int kLastUntaken = 18;
    const int step = IndexOf(StepName, text);
    return step < 0 || (step >= kFirstUntaken && step <= kLastUntaken) ? previous : step;
}

int OptionOr(int previous, std::string_view text)
{
    const int found = text == "Scrt" ? kSecretOption : IndexOf(OptionName, text);
    return (found >= 0 ? found : previous / kOptionUnit) * kOptionUnit;
}

int SecretOr(int previous, std::string_view text)
{
    const int code = ReadInteger(text);
    return code >= 0 && code < kSecretCodes ? code : previous;
}

/// Nothing when there is no such carrier.
std::optional<int> CarrierCode(std::string_view text)
{
    if (text == "JR")
        return kCarrierJr;
    // Everything else reads and writes (code + 3) * 100, so an import moves each code up by one: the files
    // that owners keep count so.
    const int code = ReadInteger(text) / 100 - 2;
    return code >= 0 && code < kCarrierJr ? std::optional(code) : std::nullopt;
}

int ToneOr(int previous, std::string_view text)
{
    static const auto kTones = [] {
        std::array<double, ToneName.size()> tones{};
        std::transform(ToneName.begin(), ToneName.end(), tones.begin(), ReadNumber);
        return tones;
    }();
    const auto* found = std::find(kTones.begin(), kTones.end(), ReadNumber(text));
    return found == kTones.end() ? previous : static_cast<int>(found - kTones.begin());
}

int ShiftOf(std::string_view text)
{
    const std::string upper = UpperCase(text);
    return upper == "+SHIFT" ? 0x10 : upper == "-SHIFT" ? 0x20 : 0;
}

std::uint8_t Code(int value)
{
    return static_cast<std::uint8_t>(value);
}

ChannelContents Imported(const CsvRecord& record, const ChannelContents& previous)
{
    const auto& texts = record.texts;
    ChannelContents row;
    row.frequency = HertzBelow(kFrequencyLimit, texts[kFrequency]).value_or(previous.frequency);
    if (row.frequency == 0)
        return row;
    const int mode = IndexOf(ModeName, texts[kMode]);
    row.mode = mode < 0 ? previous.mode : Code(mode);
    row.step = Code(StepOr(previous.step, texts[kStep]));
    row.option = Code(OptionOr(previous.option, texts[kOption]) + (record.isSkipped ? kSkipBit : 0));
    row.secret = Code(SecretOr(previous.secret, texts[kSecret]));
    row.carrier = Code(CarrierCode(texts[kCarrier]).value_or(previous.carrier));
    row.tone = Code(ToneOr(previous.tone, texts[kTone]));
    row.shift = Code(ShiftOf(texts[kShift]));
    row.shiftFrequency = static_cast<std::int32_t>(
        HertzBelow(kShiftLimit, texts[kShiftFrequency]).value_or(previous.shiftFrequency));
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

bool StoreRecord(const CsvRecord& record, RowKind kind, Channel& row)
{
    static_cast<ChannelContents&>(row) = Imported(record, row);
    row.note = PlainNote(record.texts[kNote]);
    if (kind == RowKind::Memory)
        row.enabled = record.isEnabled;
    return row.HasChannel() && CarrierCode(record.texts[kCarrier]).value_or(kCarrierJr) != kCarrierJr;
}

}  // namespace rqm5
