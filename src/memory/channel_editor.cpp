#include "memory/channel_editor.h"

#include <array>
#include <charconv>

#include "image/number_text.h"
#include "image/value_tables.h"
#include "memory/search_pass.h"

namespace rqm5 {
namespace {

constexpr int kCellularVfoRow = 6;
constexpr double kOffsetLimit = 100;
constexpr int kSkipBit = 8;
constexpr int kOptionUnit = 16;
constexpr int kLastStepButton = 13;
constexpr int kOneKilohertzStep = 19;
constexpr char kFrequencyOfAnEmptyRow[] = "145.000000";

/// A field that is chosen from buttons or a list.
struct Choice
{
    Column column;
    std::uint8_t ChannelContents::*value;
    int ChannelFields::*index;
    int unit;                   ///< the value stored is the index times this
    int count;                  ///< how many values there are
    bool Region::*isAvailable;  ///< null where every region has it
};

constexpr Choice kChoices[] = {
    {kMode, &ChannelContents::mode, &ChannelFields::mode, 1, 3, nullptr},
    {kStep, &ChannelContents::step, &ChannelFields::step, 1, 20, nullptr},
    {kOption, &ChannelContents::option, &ChannelFields::option, kOptionUnit, 5, nullptr},
    {kSecret, &ChannelContents::secret, &ChannelFields::secret, 1, kSecretCodes, &Region::hasSecretCode},
    {kCarrier, &ChannelContents::carrier, &ChannelFields::carrier, 1, kCarrierJr + 1, &Region::hasCarrier},
    {kTone, &ChannelContents::tone, &ChannelFields::tone, 1, 39, nullptr},
    {kShift, &ChannelContents::shift, &ChannelFields::shift, kOptionUnit, 3, nullptr},
};

std::string TextOf(const CloneImage& image, RowId id, Column column)
{
    return CellText(image.At(id), id.kind, kNoRegion, column);
}

const FrequencyRange& LimitOf(const CloneImage& image, RowId id)
{
    if (id.IsMemory())
        return kReceiverRange;
    return BandLimitOf(id.row, image.ModelNo());
}

Verdict JudgeFrequency(const CloneImage& image, RowId id, int selector, double typed)
{
    if (!LimitOf(image, id).Contains(typed))
        return Verdict::OutOfRange;
    const std::int64_t frequency = Hertz(typed);
    const bool hasCellular = id.IsMemory() || id.row == kCellularVfoRow;
    if (hasCellular && RegionOf(image.ModelNo()).blocksCellular && IsCellular(frequency))
        return Verdict::Cellular;
    if (id.IsMemory() && selector == kSelectSearchPass && IsSearchPassDuplicate(image, frequency, id.row))
        return Verdict::Duplicate;
    return Verdict::Accepted;
}

/// What a refused frequency gives way to.
std::string RestoredFrequency(const CloneImage& image, RowId id)
{
    if (id.IsMemory() && !image.At(id).HasChannel())
        return kFrequencyOfAnEmptyRow;
    // A VFO row without a frequency shows it as a number all the same.
    return FormatMegahertz(image.At(id).frequency);
}

/// MHz as short as they can be written without an exponent.
std::string ShortText(std::int64_t hertz)
{
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), Megahertz(hertz),
                                   std::chars_format::fixed)
                         .ptr;
    return std::string(buffer.data(), end);
}

/// A column that a value comes into is not blank any more.
void Fill(ChannelContents& row, Column column)
{
    row.blank = static_cast<std::uint16_t>(row.blank & ~(1U << column));
}

void StoreChoices(const ChannelFields& fields, const Region& region, ChannelContents& row)
{
    for (const Choice& choice : kChoices) {
        const int index = fields.*choice.index;
        const bool isAvailable = choice.isAvailable == nullptr || region.*choice.isAvailable;
        if (index < 0 || index >= choice.count || !isAvailable)
            continue;
        row.*choice.value = static_cast<std::uint8_t>(index * choice.unit);
        Fill(row, choice.column);
        if (choice.column == kCarrier)
            row.isCarrierImported = false;
    }
}

void StoreMemoryFields(const ChannelFields& fields, Channel& row)
{
    const int option = row.option / kOptionUnit * kOptionUnit;
    row.option = static_cast<std::uint8_t>(option + (fields.skip ? kSkipBit : 0));
    if (fields.option != ChannelFields::kNothing)
        row.isSecretEdited = fields.option == kSecretOption;
    row.note = fields.note;
    row.enabled = fields.enable;
}

/// A row as the fields make it.
Channel WithFields(const CloneImage& image, RowId id, const ChannelFields& fields)
{
    Channel row = image.At(id);
    row.frequency = ReadHertz(fields.frequency);
    row.shiftFrequency = static_cast<std::int32_t>(ReadHertz(fields.shiftFrequency));
    Fill(row, kFrequency);
    Fill(row, kShiftFrequency);
    StoreChoices(fields, RegionOf(image.ModelNo()), row);
    if (id.IsMemory())
        StoreMemoryFields(fields, row);
    return row;
}

}  // namespace

Message VerdictText(Verdict verdict)
{
    switch (verdict) {
        case Verdict::OutOfRange:
            return MESSAGE("The receiver takes 0.1 to 1299.995 MHz.");
        case Verdict::Cellular:
            return MESSAGE("It is a frequency of the cellular phone, which this model refuses.");
        case Verdict::Duplicate:
            return MESSAGE("Another Search Pass channel has the same frequency.");
        default:
            return {};
    }
}

Verdict JudgeFrequency(const CloneImage& image, int row, std::int64_t hertz)
{
    const int selector = kSearchPass.rows.Contains(row) ? kSelectSearchPass : kSelectAll;
    return JudgeFrequency(image, {RowKind::Memory, row}, selector, Megahertz(hertz));
}

bool HasStepButton(int step)
{
    return (step >= 0 && step <= kLastStepButton) || step == kOneKilohertzStep;
}

bool CanModify(const CloneImage& image, RowId id)
{
    return id.Exists() && (id.IsMemory() || id.row < RegionOf(image.ModelNo()).vfoBands);
}

std::string FrequencyRangeText(const CloneImage& image, RowId id)
{
    if (id.IsMemory())
        return "(0.1-1299.995MHz)";
    return std::string(TextAt(BandRangeText, id.row * kRegions + image.ModelNo()));
}

ChannelFields LoadFields(const CloneImage& image, RowId id)
{
    const Channel& row = image.At(id);
    ChannelFields fields;
    for (const Choice& choice : kChoices) {
        const int index = row.*choice.value / choice.unit;
        fields.*choice.index = index < choice.count ? index : ChannelFields::kNothing;
    }
    if (!HasStepButton(fields.step))
        fields.step = ChannelFields::kNothing;
    fields.frequency = TextOf(image, id, kFrequency);
    fields.shiftFrequency = TextOf(image, id, kShiftFrequency);
    fields.note = row.note;
    if (id.IsMemory()) {
        fields.skip = row.IsSkipped();
        fields.enable = row.enabled;
    }
    return fields;
}

CheckedEntry CheckFrequency(const CloneImage& image, RowId id, int selector, const std::string& typed)
{
    const double frequency = ReadNumber(typed);
    const Verdict verdict = JudgeFrequency(image, id, selector, frequency);
    return {verdict,
            verdict == Verdict::Accepted ? FormatMegahertz(Hertz(frequency)) : RestoredFrequency(image, id)};
}

CheckedEntry CheckOffset(const CloneImage& image, RowId id, int /*selector*/, const std::string& typed)
{
    const double offset = ReadNumber(typed);
    if (offset >= 0 && Megahertz(Hertz(offset)) < kOffsetLimit)
        return {Verdict::Accepted, FormatMegahertz(Hertz(offset))};
    return {Verdict::OutOfRange,
            id.IsMemory() ? ShortText(image.At(id).shiftFrequency) : TextOf(image, id, kShiftFrequency)};
}

bool StoreFields(CloneImage& image, RowId id, const ChannelFields& fields)
{
    if (!id.Exists())
        return false;
    image.At(id) = WithFields(image, id, fields);
    return true;
}

void StoreParts(CloneImage& image, int row, const ChannelFields& fields, Parts parts)
{
    CopyParts(WithFields(image, {RowKind::Memory, row}, fields), parts, image.MemData(row));
}

}  // namespace rqm5
