#include "memory/memory_table_model.h"

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include "memory/cell_edit.h"
#include "memory/table_titles.h"

namespace rqm5 {

MemoryTableModel::MemoryTableModel(const CloneImage& image, QObject* parent)
    : ChannelTableModel(kMemoryTitles, parent), image_(image)
{
}

void MemoryTableModel::ShowGroup(int selector)
{
    selector_ = selector;
    rows_ = GroupRows(image_, selector);
    ShowRows(BuildChannelLabels(image_, selector));
}

QVariant MemoryTableModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::ForegroundRole || !index.isValid())
        return ChannelTableModel::data(index, role);
    const QPalette palette = QGuiApplication::palette();
    return IsEnabled(index.row()) ? palette.brush(QPalette::Active, QPalette::WindowText)
                                  : palette.brush(QPalette::Disabled, QPalette::WindowText);
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

std::string MemoryTableModel::Cell(int row, Column column) const
{
    return CellText(image_.MemData(MemoryRow(row)), RowKind::Memory, image_.ModelNo(), column);
}

}  // namespace rqm5
