#pragma once

#include <optional>

#include "memory/cell_delegate.h"
#include "memory/memory_table_model.h"
#include "ui/channel_table.h"

class QMimeData;

namespace rqm5 {

/// The memory channel table, MSFlexGrid1. Several rows can be selected; one is current, and one of its cells.
class MemoryTable : public ChannelTable
{
    Q_OBJECT

  public:
    MemoryTable(const CloneImage& image, QWidget* parent);

    /// Shows the rows of a group that a filter leaves, and their labels, anew; the current row stays where it
    /// was, cut to what is shown, and it is selected from its first column on.
    void UpDateMemData(int selector, RowFilter filter);

    /// The same, but what is selected stays selected and the cell cursor stays where it is.
    void Refresh(int selector, RowFilter filter);

    /// The memory rows shown, in order.
    const std::vector<int>& MemoryRows() const { return model_.Rows(); }

    /// True while a filter may hide rows of the group.
    bool IsFiltered() const { return model_.IsFiltered(); }

    /// Makes a memory row current, if it is shown, and brings the current row into sight.
    void SelectMemoryRow(int memoryRow);

    /// Selects those memory rows that are shown and makes the first of them current, with the cell cursor in
    /// a column. \return false when none is shown
    bool SelectRows(const std::vector<int>& rows, int column);

    /// The selected memory rows, rising, and the current one; -1 when the group is empty.
    std::vector<int> SelectedRows() const;
    int CurrentRow() const;

    /// Takes what is typed into cells.
    void SetCellWriter(CellDelegate::Writer writer);

    /// A word at the current cell, such as why it was not taken.
    void ShowHint(const QString& text);

    void keyboardSearch(const QString& search) override;

  signals:
    void InsertPressed();
    void DeletePressed();
    void TogglePressed();

    /// The selected rows were dragged to before a memory row of the group, or behind its last one.
    void RowsDragged(int before);

    /// Something with channels in it was dropped on a memory row.
    void Dropped(const QMimeData& data, int row);

    /// The status tip says something else than before: in the view of all rows it names the current one.
    void HintChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    struct DropPlace
    {
        QPoint position;
        bool isMove;  ///< of this table's own rows
    };

    int PlaceOf(int memoryRow) const;
    void SelectAgain(const std::vector<int>& rows, int current, int tableRow, int column);
    void ShowPlace();
    void LeaveCell(int rows, int columns);
    int RowOfDrop(const DropPlace& drop) const;
    bool IsOwnMove(const QDropEvent& event) const;
    bool CanTake(const QDropEvent& event) const;
    void ShowDropLine(std::optional<DropPlace> drop);

    const CloneImage& image_;
    MemoryTableModel model_;
    CellDelegate* cells_;
    std::optional<DropPlace> drop_;  ///< while something that can be dropped is over the table
};

}  // namespace rqm5
