#pragma once

#include <QAbstractTableModel>

#include "files/list_form.h"

namespace rqm5 {

/// A list as it was read, below a row that has room for what each column is taken for.
class ListTableModel : public QAbstractTableModel
{
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    void ShowTable(const ListTable& table);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    ListTable table_;
};

/// The title of a column, or its number where the list has none.
QString ColumnTitle(const ListTable& table, int column);

}  // namespace rqm5
