#include "memory/memory_table_model.h"

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include "memory/table_titles.h"

namespace rqm5 {

MemoryTableModel::MemoryTableModel(const CloneImage& image, QObject* parent)
    : ChannelTableModel(kMemoryTitles, parent), image_(image)
{
}

void MemoryTableModel::ShowGroup(int selector)
{
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

bool MemoryTableModel::IsEnabled(int row) const
{
    return image_.MemEnable(rows_.first + row);
}

std::string MemoryTableModel::Cell(int row, Column column) const
{
    return CellText(image_.MemData(rows_.first + row), RowKind::Memory, image_.ModelNo(), column);
}

}  // namespace rqm5
