#include "memory/row_fields.h"

#include "image/display_text.h"
#include "image/number_text.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

/// The value of a code, for what two cells do not tell apart.
int CodeOf(const ChannelContents& contents, Column column)
{
    for (const CodeField& field : kCodeFields)
        if (field.column == column)
            return contents.*field.value;
    return 0;
}

FieldPair PairOf(Message first, Message second)
{
    const bool differs = first != second;
    return {std::move(first), std::move(second), differs};
}

FieldPair ColumnPair(const Channel& first, const Channel& second, RowKind kind, Column column)
{
    const int from = CodeOf(first, column);
    const int to = CodeOf(second, column);
    const bool isSkipAlone = column == kOption && first.IsSkipped() != second.IsSkipped();
    FieldPair pair = PairOf(VisibleText(CellText(first, kind, kNoRegion, column)),
                            VisibleText(CellText(second, kind, kNoRegion, column)));
    if (!pair.differs && from != to && !isSkipAlone)  // a shift byte of no meaning shows as "OFF", too
        pair = PairOf(FormatMegahertz(from * kHertzPerMegahertz), FormatMegahertz(to * kHertzPerMegahertz));
    return pair;
}

}  // namespace

const char* RowFieldName(int field)
{
    return field == kSkipField      ? MESSAGE("Skip")
           : field == kEnabledField ? MESSAGE("Enabled")
                                    : kColumnNames.at(static_cast<std::size_t>(field));
}

Message OnOff(bool value)
{
    return value ? MESSAGE("on") : MESSAGE("off");
}

FieldPairs CompareFields(const Channel& first, const Channel& second, RowKind kind)
{
    FieldPairs pairs(kRowFields);
    for (const Column column : kColumns)
        pairs[column] = ColumnPair(first, second, kind, column);
    pairs[kSkipField] = PairOf(OnOff(first.IsSkipped()), OnOff(second.IsSkipped()));
    pairs[kEnabledField] = PairOf(OnOff(first.enabled), OnOff(second.enabled));
    return pairs;
}

}  // namespace rqm5
