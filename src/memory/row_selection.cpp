#include "memory/row_selection.h"

#include <algorithm>

#include "memory/row_names.h"

namespace rqm5 {
namespace {

/// "Bank 2, 15 channels"
Message ChannelsIn(const Message& place, std::size_t channels)
{
    if (channels == 1)
        return {MESSAGE("%1, 1 channel"), {place}};
    return {MESSAGE("%1, %2 channels"), {place, static_cast<int>(channels)}};
}

}  // namespace

RowSelection::RowSelection(Document& document, const QComboBox& cbbBank, MemoryTable& table)
    : document_(document), cbbBank_(cbbBank), table_(table)
{
}

int RowSelection::Top() const
{
    const RowList rows = Rows();
    return std::ranges::binary_search(rows, Current()) ? rows.front() : Current();
}

Message RowSelection::NameOf(int row) const
{
    const Message place = PlaceOfRow(Image(), row);
    return place.empty() ? Message(MESSAGE("row %1"), {row}) : place;
}

Message RowSelection::NameOf(const RowList& rows) const
{
    return rows.size() == 1 ? NameOf(rows.front()) : ChannelsIn(NameOfSelector(), rows.size());
}

Message RowSelection::NameOfSelector() const
{
    return SelectorText(Selector());
}

Message RowSelection::NameOfGroup() const
{
    if (!IsFiltered())
        return ChannelsIn(NameOfSelector(), Shown().size());
    if (Shown().size() == 1)
        return {MESSAGE("%1, the one channel shown of %2"), {NameOfSelector(), Group().count}};
    return {MESSAGE("%1, the %2 channels shown of %3"),
            {NameOfSelector(), static_cast<int>(Shown().size()), Group().count}};
}

Message RowSelection::ContentsOf(int row) const
{
    return Image().MemData(row).HasChannel() ? Message(Image().MemText(row, kFrequency) + " MHz")
                                             : Message(MESSAGE("which is empty"));
}

void RowSelection::Edit(const Message& name, const Document::ChangeFunction& change) const
{
    document_.Edit(name, change);
    table_.setFocus(Qt::OtherFocusReason);
}

}  // namespace rqm5
