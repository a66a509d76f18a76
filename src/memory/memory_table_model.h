#pragma once

#include "memory/bank_layout.h"
#include "ui/channel_table_model.h"

namespace rqm5 {

/// The memory rows of the group that the bank selector shows.
class MemoryTableModel : public ChannelTableModel
{
    Q_OBJECT

  public:
    MemoryTableModel(const CloneImage& image, QObject* parent);

    /// Takes over rows and labels of a group and shows them.
    void ShowGroup(int selector);

    int Selector() const { return selector_; }

    /// The memory row of a data row (from 0).
    int MemoryRow(int row) const { return rows_.first + row; }

    QVariant data(const QModelIndex& index, int role) const override;

    /// Cells that can be edited where they stand are editable; rows can be dragged, and dropped between.
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;

    /// True when the memory row of a data row (from 0) is enabled.
    bool IsEnabled(int row) const;

  protected:
    std::string Cell(int row, Column column) const override;

  private:
    const CloneImage& image_;
    RowRange rows_;
    int selector_ = 0;
};

}  // namespace rqm5
