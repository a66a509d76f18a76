#include "memory/list_table_model.h"

#include "ui/plain_text.h"

namespace rqm5 {

QString ColumnTitle(const ListTable& table, int column)
{
    const auto place = static_cast<std::size_t>(column);
    return place < table.titles.size() && !table.titles[place].empty()
               ? VisibleText(QString::fromStdString(table.titles[place]))
               : ListTableModel::tr("Column %1").arg(column + 1);
}

void ListTableModel::ShowTable(const ListTable& table)
{
    beginResetModel();
    table_ = table;
    endResetModel();
}

int ListTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(table_.records.size()) + 1;
}

int ListTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(table_.columns.size());
}

QVariant ListTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() == 0 || role != Qt::DisplayRole)
        return {};
    const auto& fields = table_.records.at(static_cast<std::size_t>(index.row() - 1)).fields;
    const auto column = static_cast<std::size_t>(index.column());
    return column < fields.size() ? VisibleText(QString::fromStdString(fields[column])) : QString();
}

QVariant ListTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Horizontal)
        return ColumnTitle(table_, section);
    return section == 0 ? tr("is")
                        : QString::number(table_.records.at(static_cast<std::size_t>(section - 1)).line);
}

}  // namespace rqm5
