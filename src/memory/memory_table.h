#pragma once

#include "memory/memory_table_model.h"
#include "ui/channel_table.h"

namespace rqm5 {

/// The memory channel table, MSFlexGrid1.
class MemoryTable : public ChannelTable
{
    Q_OBJECT

  public:
    MemoryTable(const CloneImage& image, QWidget* parent);

    /// Shows the rows of a group that a filter leaves, and their labels, anew; the current row stays where it
    /// was, cut to what is shown.
    void UpDateMemData(int selector, RowFilter filter);

    /// The memory row of a table row; with a filter on there is no other way to tell.
    int MemoryRow(int tableRow) const;

    /// The memory rows shown, in order.
    const std::vector<int>& MemoryRows() const { return model_.Rows(); }

    /// Makes a memory row current, if it is shown, and brings the current row into sight.
    void SelectMemoryRow(int memoryRow);

  signals:
    void InsertPressed();
    void DeletePressed();

    /// The status tip says something else than before: in the view of all rows it names the current one.
    void HintChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void ShowHint();

    MemoryTableModel model_;
};

}  // namespace rqm5
