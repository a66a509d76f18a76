#pragma once

#include <QBrush>

#include "memory/row_filter.h"
#include "ui/channel_table_model.h"

namespace rqm5 {

/// The memory rows of the group that the bank selector shows, or those of them that a filter leaves.
class MemoryTableModel : public ChannelTableModel
{
    Q_OBJECT

  public:
    MemoryTableModel(const CloneImage& image, QObject* parent);

    /// Takes over rows and labels of a group and shows them.
    void ShowGroup(int selector, RowFilter filter);

    int Selector() const { return selector_; }

    /// The memory row of a data row (from 0).
    int MemoryRow(int row) const { return rows_.at(static_cast<std::size_t>(row)); }

    QVariant data(const QModelIndex& index, int role) const override;

    /// The memory rows shown, in order.
    const std::vector<int>& Rows() const { return rows_; }

    /// True while a filter may hide rows of the group.
    bool IsFiltered() const { return filter_ != RowFilter::All; }

    /// Cells that can be edited where they stand are editable; rows can be dragged, and dropped between.
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;

    /// True when the memory row of a data row (from 0) is enabled.
    bool IsEnabled(int row) const;

    /// "Bank 2, channel 12" in the view of all rows, whose labels do not tell it; else empty.
    QString Place(int row) const;

  protected:
    std::string Cell(int row, Column column) const override;

  private:
    QBrush TextColour(bool isEnabled) const;

    const CloneImage& image_;
    std::vector<int> rows_;
    int selector_ = 0;
    RowFilter filter_ = RowFilter::All;
    mutable qint64 paletteKey_ = 0;
    mutable QBrush offText_;
};

}  // namespace rqm5
