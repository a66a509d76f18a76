#include "memory/row_selection.h"

#include <QCoreApplication>
#include <algorithm>

#include "memory/row_names.h"

namespace rqm5 {
namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("rqm5::MemoryPage", text);
}

/// "Bank 2, 15 channels"
QString Counted(const QString& place, std::size_t channels)
{
    return channels == 1 ? Translated(QT_TRANSLATE_NOOP("rqm5::MemoryPage", "%1, 1 channel")).arg(place)
                         : Translated(QT_TRANSLATE_NOOP("rqm5::MemoryPage", "%1, %2 channels"))
                               .arg(place)
                               .arg(channels);
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

QString RowSelection::NameOf(int row) const
{
    const std::string place = PlaceOfRow(Image(), row);
    return place.empty() ? Translated(QT_TRANSLATE_NOOP("rqm5::MemoryPage", "row %1")).arg(row)
                         : QString::fromStdString(place);
}

QString RowSelection::NameOf(const RowList& rows) const
{
    return rows.size() == 1 ? NameOf(rows.front()) : Counted(NameOfSelector(), rows.size());
}

QString RowSelection::NameOfSelector() const
{
    return QString::fromStdString(SelectorText(Selector()));
}

QString RowSelection::NameOfGroup() const
{
    if (!IsFiltered())
        return Counted(NameOfSelector(), Shown().size());
    if (Shown().size() == 1)
        return Translated(QT_TRANSLATE_NOOP("rqm5::MemoryPage", "%1, the one channel shown of %2"))
            .arg(NameOfSelector())
            .arg(Group().count);
    return Translated(QT_TRANSLATE_NOOP("rqm5::MemoryPage", "%1, the %2 channels shown of %3"))
        .arg(NameOfSelector())
        .arg(Shown().size())
        .arg(Group().count);
}

QString RowSelection::ContentsOf(int row) const
{
    return Image().MemData(row).HasChannel()
               ? QString::fromStdString(Image().MemText(row, kFrequency)) + QStringLiteral(" MHz")
               : Translated(QT_TRANSLATE_NOOP("rqm5::MemoryPage", "which is empty"));
}

void RowSelection::Edit(const QString& name, const Document::ChangeFunction& change) const
{
    document_.Edit(name, change);
    table_.setFocus(Qt::OtherFocusReason);
}

}  // namespace rqm5
