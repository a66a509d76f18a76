#pragma once

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

    /// Shows a group's rows and labels anew; the current row stays where it was, cut to the group, and it is
    /// selected from its first column on.
    void UpDateMemData(int selector);

    /// The same, but what is selected stays selected and the cell cursor stays where it is.
    void Refresh(int selector);

    /// Selects memory rows of the group shown and makes the first of them current, with the cell cursor in a
    /// column.
    void SelectRows(const std::vector<int>& rows, int column);

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

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void MoveCell(int rows, int columns);
    int RowAt(const QPoint& position) const;
    bool IsOwnMove(const QDropEvent& event) const;
    bool CanTake(const QDropEvent& event) const;

    const CloneImage& image_;
    MemoryTableModel model_;
    CellDelegate* cells_;
};

}  // namespace rqm5
