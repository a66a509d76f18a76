#include "memory/channel_editor.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "image/number_text.h"
#include "memory/bank_layout.h"
#include "memory/search_pass.h"

namespace rqm5 {
namespace {

constexpr int kCellularRegion = 2;
constexpr int kCellularVfoRow = 6;
constexpr double kOffsetLimit = 100;
constexpr int kSkipBit = 8;
constexpr int kOptionUnit = 16;
constexpr int kLastStepButton = 13;
constexpr int kOneKilohertzStep = 19;
constexpr char kFrequencyOfAnEmptyRow[] = "145.000000";

/// The numbers and texts of one row, of the memory or of the VFO table.
template <class Numbers, class Texts>
struct RowOf
{
    Numbers& numbers;
    Texts& texts;
};
using ConstRow = RowOf<const ChannelNumbers, const ChannelTexts>;
using MutableRow = RowOf<ChannelNumbers, ChannelTexts>;

template <class Row, class Image>
Row RowAt(Image& image, const EditTarget& target)
{
    const auto row = static_cast<std::size_t>(target.Row());
    return target.IsMemory() ? Row{image.MemData.at(row), image.MemText.at(row)}
                             : Row{image.VFOData.at(row), image.VFOText.at(row)};
}

bool Exists(const EditTarget& target)
{
    return target.ModifyRow >= 1 && target.ModifyRow <= (target.IsMemory() ? kMemoryRows : kVfoRows);
}

/// A field that is chosen from buttons or a list.
struct Choice
{
    Column column;
    int ChannelFields::*index;
    int unit;   ///< the number stored is the index times this
    int count;  ///< how many values there are
    std::string (*text)(int index);
    bool (*isAvailable)(int region);
};

/// Files can bring any number into a row.
int Whole(double value)
{
    return static_cast<int>(std::clamp(value, -1e6, 1e6));
}

template <const auto& kTable>
std::string Entry(int index)
{
    return std::string(TextAt(kTable, index));
}

std::string Decimal(int index)
{
    return std::to_string(index);
}

bool Always(int /*region*/)
{
    return true;
}

constexpr Choice kChoices[] = {
    {kMode, &ChannelFields::mode, 1, 3, Entry<ModeName>, Always},
    {kStep, &ChannelFields::step, 1, 20, Entry<StepName>, Always},
    {kOption, &ChannelFields::option, kOptionUnit, 5, Entry<OptionName>, Always},
    {kSecret, &ChannelFields::secret, 1, kSecretCodes, Decimal, HasSecretCode},
    {kCarrier, &ChannelFields::carrier, 1, kCarrierJr + 1, CarrierText, HasCarrier},
    {kTone, &ChannelFields::tone, 1, 39, Entry<ToneName>, Always},
    {kShift, &ChannelFields::shift, kOptionUnit, 3, Entry<ShiftName>, Always},
};

const FrequencyRange& LimitOf(const CloneImage& image, const EditTarget& target)
{
    if (target.IsMemory())
        return kReceiverRange;
    const int limit = target.Row() * kRegions + image.ModelNo();
    return BandLimit.at(static_cast<std::size_t>(limit));
}

/// The number as its box and its row will hold it, with six decimals.
double Rounded(double value)
{
    return ReadNumber(FormatMegahertz(value));
}

Verdict JudgeFrequency(const CloneImage& image, const EditTarget& target, double typed)
{
    if (!LimitOf(image, target).Contains(typed))
        return Verdict::OutOfRange;
    const double frequency = Rounded(typed);
    const bool hasCellular = target.IsMemory() || target.Row() == kCellularVfoRow;
    if (hasCellular && image.ModelNo() == kCellularRegion && IsCellular(frequency))
        return Verdict::Cellular;
    if (target.IsMemory() && target.selector == kSelectSearchPass &&
        IsSearchPassDuplicate(image, frequency, target.Row()))
        return Verdict::Duplicate;
    return Verdict::Accepted;
}

/// What a refused frequency gives way to.
std::string RestoredFrequency(const CloneImage& image, const EditTarget& target)
{
    if (target.IsMemory())
        return HasChannel(image, target.Row()) ? RowAt<ConstRow>(image, target).texts[kFrequency]
                                               : kFrequencyOfAnEmptyRow;
    // A VFO row without a frequency shows it as a number all the same.
    return FormatMegahertz(ReadNumber(RowAt<ConstRow>(image, target).texts[kFrequency]));
}

/// A number as short as it can be written without an exponent.
std::string ShortText(double value)
{
    std::array<char, 512> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed).ptr;
    return std::string(buffer.data(), end);
}

void StoreChoices(const ChannelFields& fields, int region, MutableRow row)
{
    for (const Choice& choice : kChoices) {
        const int index = fields.*choice.index;
        if (index < 0 || index >= choice.count || !choice.isAvailable(region))
            continue;
        row.numbers[choice.column] = index * choice.unit;
        row.texts[choice.column] = choice.text(index);
    }
}

void StoreFrequency(MutableRow row, Column column, const std::string& typed)
{
    row.numbers[column] = ReadNumber(typed);
    row.texts[column] = FormatMegahertz(row.numbers[column]);
}

}  // namespace

bool HasStepButton(int step)
{
    return (step >= 0 && step <= kLastStepButton) || step == kOneKilohertzStep;
}

bool HasSecretCode(int region)
{
    return region == 1;
}

bool HasCarrier(int region)
{
    return region == 0;
}

bool CanModify(const CloneImage& image, const EditTarget& target)
{
    return Exists(target) && (target.IsMemory() || target.Row() < BandCount(image.ModelNo()));
}

std::string FrequencyRangeText(const CloneImage& image, const EditTarget& target)
{
    if (target.IsMemory())
        return "(0.1-1299.995MHz)";
    return std::string(TextAt(BandRangeText, target.Row() * kRegions + image.ModelNo()));
}

ChannelFields LoadFields(const CloneImage& image, const EditTarget& target)
{
    const auto row = RowAt<ConstRow>(image, target);
    ChannelFields fields;
    for (const Choice& choice : kChoices) {
        const int index = Whole(row.numbers[choice.column]) / choice.unit;
        fields.*choice.index = index >= 0 && index < choice.count ? index : ChannelFields::kNothing;
    }
    if (!HasStepButton(fields.step))
        fields.step = ChannelFields::kNothing;
    fields.frequency = row.texts[kFrequency];
    fields.shiftFrequency = row.texts[kShiftFrequency];
    fields.note = row.texts[kNote];
    if (target.IsMemory()) {
        fields.skip = IsSkipped(image, target.Row());
        fields.enable = image.MemEnable[static_cast<std::size_t>(target.Row())];
    }
    return fields;
}

CheckedEntry CheckFrequency(const CloneImage& image, const EditTarget& target, const std::string& typed)
{
    const double frequency = ReadNumber(typed);
    const Verdict verdict = JudgeFrequency(image, target, frequency);
    return {verdict,
            verdict == Verdict::Accepted ? FormatMegahertz(frequency) : RestoredFrequency(image, target)};
}

CheckedEntry CheckOffset(const CloneImage& image, const EditTarget& target, const std::string& typed)
{
    const double offset = ReadNumber(typed);
    if (offset >= 0 && Rounded(offset) < kOffsetLimit)
        return {Verdict::Accepted, FormatMegahertz(offset)};
    const auto row = RowAt<ConstRow>(image, target);
    return {Verdict::OutOfRange,
            target.IsMemory() ? ShortText(row.numbers[kShiftFrequency]) : row.texts[kShiftFrequency]};
}

bool StoreFields(CloneImage& image, const EditTarget& target, const ChannelFields& fields)
{
    if (!Exists(target))
        return false;
    const auto row = RowAt<MutableRow>(image, target);
    StoreFrequency(row, kFrequency, fields.frequency);
    StoreFrequency(row, kShiftFrequency, fields.shiftFrequency);
    StoreChoices(fields, image.ModelNo(), row);
    if (target.IsMemory()) {
        const int option = Whole(row.numbers[kOption]) / kOptionUnit * kOptionUnit;
        row.numbers[kOption] = option + (fields.skip ? kSkipBit : 0);
        row.texts[kNote] = fields.note;
        image.MemEnable[static_cast<std::size_t>(target.Row())] = fields.enable;
    }
    image.DataChanged = true;
    return true;
}

}  // namespace rqm5
