#include "memory/memory_table_model.h"

#include <QBrush>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <utility>

#include "language/translated.h"
#include "memory/cell_edit.h"
#include "memory/row_names.h"
#include "memory/table_titles.h"
#include "ui/off_colour.h"

namespace rqm5 {

MemoryTableModel::MemoryTableModel(const CloneImage& image, QObject* parent)
    : ChannelTableModel(kMemoryTitles, parent), image_(image)
{
}

void MemoryTableModel::ShowGroup(int selector, RowFilter filter)
{
    ShownRows shown = FilterGroup(image_, selector, filter);
    rows_ = std::move(shown.rows);
    selector_ = selector;
    filter_ = filter;
    ShowRows(std::move(shown.labels));
}

QVariant MemoryTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto offFont = [] {
        QFont font;
        font.setItalic(true);
        return font;
    };
    switch (role) {
        case Qt::ForegroundRole:
            return TextColour(IsEnabled(index.row()));
        case Qt::FontRole:
            return IsEnabled(index.row()) ? QVariant() : offFont();
        case Qt::ToolTipRole:
        case Qt::StatusTipRole:
            return Place(index.row());
        default:
            return ChannelTableModel::data(index, role);
    }
}

QBrush MemoryTableModel::TextColour(bool isEnabled) const
{
    const QPalette palette = QGuiApplication::palette();
    if (isEnabled)
        return palette.windowText();
    // Every cell asks, and the answer takes some arithmetic.
    if (std::exchange(paletteKey_, palette.cacheKey()) != palette.cacheKey())
        offText_ = OffColour(palette, QPalette::Base);
    return offText_;
}

Qt::ItemFlags MemoryTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = ChannelTableModel::flags(index);
    if (!index.isValid())
        return flags | Qt::ItemIsDropEnabled;
    const CellEdit edit = EditorOfCell(image_, MemoryRow(index.row()), static_cast<Column>(index.column()));
    return flags | Qt::ItemIsDragEnabled |
           (edit.kind == CellKind::Fixed ? Qt::NoItemFlags : Qt::ItemIsEditable);
}

Qt::DropActions MemoryTableModel::supportedDropActions() const
{
    return Qt::CopyAction | Qt::MoveAction;
}

QStringList MemoryTableModel::mimeTypes() const
{
    return {QStringLiteral("text/plain"), QStringLiteral("text/uri-list")};
}

bool MemoryTableModel::IsEnabled(int row) const
{
    return image_.MemEnable(MemoryRow(row));
}

QString MemoryTableModel::Place(int row) const
{
    if (selector_ != kSelectAll)
        return {};
    const Message place = PlaceOfRow(image_, MemoryRow(row));
    return place.empty() ? tr("In no bank") : Translated(place);
}

std::string MemoryTableModel::Cell(int row, Column column) const
{
    return CellText(image_.MemData(MemoryRow(row)), RowKind::Memory, image_.ModelNo(), column);
}

}  // namespace rqm5
