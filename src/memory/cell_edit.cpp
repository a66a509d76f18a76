#include "memory/cell_edit.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "image/number_text.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

constexpr std::array<int, 15> kStepsBySize = {19, 1, 2, 3, 0, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};
constexpr int kOptionUnit = 16;
constexpr int kCarrierOption = 2;
constexpr const char* kNotSkipped = "-";
constexpr const char* kSkipped = "*";

/// A column with choices: where its value lies in the editor's fields, and the text of a value.
struct ChoiceColumn
{
    Column column;
    int ChannelFields::*field;
    int count;
    std::string (*text)(int value);
};

template <const auto& Names>
std::string NameText(int value)
{
    return std::string(TextAt(Names, value));
}

constexpr ChoiceColumn kChoices[] = {
    {kMode, &ChannelFields::mode, static_cast<int>(ModeName.size()), NameText<ModeName>},
    {kStep, &ChannelFields::step, static_cast<int>(StepName.size()), NameText<StepName>},
    {kOption, &ChannelFields::option, static_cast<int>(OptionName.size()), NameText<OptionName>},
    {kSecret, &ChannelFields::secret, kSecretCodes, [](int code) { return std::to_string(code); }},
    {kCarrier, &ChannelFields::carrier, kCarrierJr + 1, CarrierText},
    {kTone, &ChannelFields::tone, static_cast<int>(ToneName.size()), NameText<ToneName>},
    {kShift, &ChannelFields::shift, static_cast<int>(ShiftName.size()), NameText<ShiftName>},
};

const ChoiceColumn* ChoicesOf(Column column)
{
    const auto* found = std::ranges::find(kChoices, column, &ChoiceColumn::column);
    return found != std::end(kChoices) ? found : nullptr;
}

bool IsSkipMark(const CloneImage& image, Column column)
{
    return column == kSecret && RegionOf(image.ModelNo()).showsSkipMark;
}

bool HasRegion(const CloneImage& image, Column column)
{
    const Region& region = RegionOf(image.ModelNo());
    return column == kSecret    ? region.showsSkipMark || region.hasSecretCode
           : column == kCarrier ? region.hasCarrier
                                : true;
}

/// The values that a column's list offers: what the region does not have only where a row holds it already.
std::vector<int> ValuesOf(const CloneImage& image, const ChoiceColumn& choices, int present)
{
    std::vector<int> values(kStepsBySize.begin(), kStepsBySize.end());
    if (choices.column != kStep) {
        values.resize(static_cast<std::size_t>(choices.count));
        std::iota(values.begin(), values.end(), 0);
    }
    const Region& region = RegionOf(image.ModelNo());
    if (choices.column == kOption)
        std::erase_if(values, [&](int value) {
            return (value == kSecretOption && !region.hasSecretCode) ||
                   (value == kCarrierOption && !region.hasCarrier);
        });
    if (std::ranges::find(values, present) == values.end())
        values.push_back(present);
    return values;
}

/// The value that a row holds, in the numbers of the editor's fields, those without a button too.
int ValueOf(const Channel& row, const ChoiceColumn& choices, const ChannelFields& fields)
{
    if (choices.column == kStep)
        return row.step;
    return choices.column == kOption ? row.option / kOptionUnit : fields.*choices.field;
}

std::vector<CellChoice> Offered(const CloneImage& image, const ChoiceColumn& choices, int present)
{
    std::vector<CellChoice> offered;
    for (const int value : ValuesOf(image, choices, present))
        offered.push_back({value, choices.text(value)});
    return offered;
}

}  // namespace

CellEdit EditorOfCell(const CloneImage& image, int row, Column column)
{
    const Channel& channel = image.MemData(row);
    if (!HasRegion(image, column) || (!channel.HasChannel() && column != kFrequency))
        return {};
    if (column == kNote)
        return {.kind = CellKind::Text, .text = channel.note};
    if (column == kFrequency || column == kShiftFrequency)
        return {.kind = CellKind::Number, .text = image.MemText(row, column)};
    if (IsSkipMark(image, column))
        return {.kind = CellKind::Choice,
                .choices = {{0, kNotSkipped}, {1, kSkipped}},
                .value = channel.IsSkipped() ? 1 : 0};
    const ChoiceColumn& choices = *ChoicesOf(column);
    const int present = ValueOf(channel, choices, LoadFields(image, {RowKind::Memory, row}));
    return {.kind = CellKind::Choice, .choices = Offered(image, choices, present), .value = present};
}

CheckedEntry CheckCell(const CloneImage& image, int row, Column column, int selector,
                       const std::string& typed)
{
    const bool isNothing = column == kFrequency && typed.empty() && !image.MemData(row).HasChannel();
    if (isNothing || column == kNote)
        return {Verdict::Accepted, typed};
    const auto check = column == kFrequency ? CheckFrequency : CheckOffset;
    return check(image, {RowKind::Memory, row}, selector, typed);
}

void StoreCellText(CloneImage& image, int row, Column column, const std::string& text)
{
    if (column == kFrequency && !image.MemData(row).HasChannel()) {
        if (const std::int64_t hertz = ReadHertz(text); hertz != 0) {
            const std::string note = image.MemData(row).note;
            image.MemData(row) = NewChannel(image, hertz);
            image.MemData(row).note = note;
        }
        return;
    }
    ChannelFields fields = LoadFields(image, {RowKind::Memory, row});
    (column == kNote ? fields.note : column == kFrequency ? fields.frequency : fields.shiftFrequency) = text;
    StoreParts(image, row, fields, {column});
}

void StoreCellChoice(CloneImage& image, int row, Column column, int value)
{
    ChannelFields fields = LoadFields(image, {RowKind::Memory, row});
    if (IsSkipMark(image, column)) {
        fields.skip = value != 0;
        StoreParts(image, row, fields, {kSkipPart});
        return;
    }
    fields.*ChoicesOf(column)->field = value;
    StoreParts(image, row, fields, {column});
}

}  // namespace rqm5
