#include "memory/several_rows.h"

#include "image/number_text.h"

namespace rqm5 {
namespace {

struct TextField
{
    int part;
    std::string ChannelFields::*text;
};

struct ChoiceField
{
    int part;
    int ChannelFields::*index;
};

constexpr TextField kTexts[] = {{kFrequency, &ChannelFields::frequency},
                                {kShiftFrequency, &ChannelFields::shiftFrequency},
                                {kNote, &ChannelFields::note}};

constexpr ChoiceField kIndices[] = {{kMode, &ChannelFields::mode},       {kStep, &ChannelFields::step},
                                    {kOption, &ChannelFields::option},   {kSecret, &ChannelFields::secret},
                                    {kCarrier, &ChannelFields::carrier}, {kTone, &ChannelFields::tone},
                                    {kShift, &ChannelFields::shift}};

void BlankWhereTheyDiffer(SharedFields& shared, const ChannelFields& row)
{
    for (const TextField& field : kTexts)
        if (shared.fields.*field.text != row.*field.text)
            (shared.fields.*field.text).clear();
    for (const ChoiceField& field : kIndices)
        if (shared.fields.*field.index != row.*field.index)
            shared.fields.*field.index = ChannelFields::kNothing;
    shared.isSkipMixed |= shared.fields.skip != row.skip;
    shared.isEnableMixed |= shared.fields.enable != row.enable;
}

bool IsTouched(bool wasMixed, bool was, bool isMixed, bool is)
{
    return !isMixed && (wasMixed || was != is);
}

/// What a row becomes: its own fields, but for those that were touched.
ChannelFields Merged(ChannelFields own, const ChannelFields& entered, Parts touched)
{
    for (const TextField& field : kTexts)
        if (touched.Has(field.part))
            own.*field.text = entered.*field.text;
    for (const ChoiceField& field : kIndices)
        if (touched.Has(field.part))
            own.*field.index = entered.*field.index;
    own.skip = touched.Has(kSkipPart) ? entered.skip : own.skip;
    own.enable = touched.Has(kEnabledPart) ? entered.enable : own.enable;
    return own;
}

/// The blank that stands again where rows differ, and what they have in common otherwise.
std::string SharedText(const CloneImage& image, const RowList& rows, std::string ChannelFields::*text)
{
    return LoadShared(image, rows).fields.*text;
}

}  // namespace

SharedFields LoadShared(const CloneImage& image, const RowList& rows)
{
    SharedFields shared{LoadFields(image, {RowKind::Memory, rows.front()})};
    for (const int row : rows)
        BlankWhereTheyDiffer(shared, LoadFields(image, {RowKind::Memory, row}));
    return shared;
}

Parts TouchedParts(const SharedFields& shown, const SharedFields& entered)
{
    Parts touched;
    for (const TextField& field : kTexts) {
        // A number box that was emptied says nothing; a note that was emptied is to go.
        const bool saysNothing = field.part != kNote && (entered.fields.*field.text).empty();
        if (entered.fields.*field.text != shown.fields.*field.text && !saysNothing)
            touched.Add(field.part);
    }
    for (const ChoiceField& field : kIndices)
        if (entered.fields.*field.index != shown.fields.*field.index)
            touched.Add(field.part);
    if (IsTouched(shown.isSkipMixed, shown.fields.skip, entered.isSkipMixed, entered.fields.skip))
        touched.Add(kSkipPart);
    if (IsTouched(shown.isEnableMixed, shown.fields.enable, entered.isEnableMixed, entered.fields.enable))
        touched.Add(kEnabledPart);
    return touched;
}

void StoreShared(CloneImage& image, const RowList& rows, const SharedFields& shown,
                 const SharedFields& entered)
{
    const Parts touched = TouchedParts(shown, entered);
    for (const int row : rows) {
        const ChannelFields own = LoadFields(image, {RowKind::Memory, row});
        StoreParts(image, row, Merged(own, entered.fields, touched), touched);
    }
}

CheckedEntry CheckSharedFrequency(const CloneImage& image, const RowList& rows, int selector,
                                  const std::string& typed)
{
    if (typed.empty())
        return {Verdict::Accepted, typed};
    // Several rows of the Search Pass list with one frequency would be duplicates of each other.
    if (selector == kSelectSearchPass && rows.size() > 1)
        return {Verdict::Duplicate, SharedText(image, rows, &ChannelFields::frequency)};
    const CheckedEntry checked = CheckFrequency(image, {RowKind::Memory, rows.front()}, selector, typed);
    if (checked.verdict == Verdict::Accepted)
        return checked;
    return {checked.verdict, SharedText(image, rows, &ChannelFields::frequency)};
}

CheckedEntry CheckSharedOffset(const CloneImage& image, const RowList& rows, int selector,
                               const std::string& typed)
{
    if (typed.empty())
        return {Verdict::Accepted, typed};
    const CheckedEntry checked = CheckOffset(image, {RowKind::Memory, rows.front()}, selector, typed);
    if (checked.verdict == Verdict::Accepted)
        return checked;
    return {checked.verdict, SharedText(image, rows, &ChannelFields::shiftFrequency)};
}

}  // namespace rqm5
