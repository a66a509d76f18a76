#pragma once

#include <QStyledItemDelegate>
#include <functional>

#include "memory/cell_edit.h"
#include "memory/memory_table_model.h"

namespace rqm5 {

/// What was entered into a cell: a text, or one of its choices.
struct CellInput
{
    std::string text;
    int choice = 0;
};

/// Edits a cell of the memory table where it stands: a box with the editor's key filter, or a list.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

  public:
    /// Takes what was entered into a cell of a memory row. \return false when it is refused
    using Writer = std::function<bool(int row, Column column, const CellInput& input)>;

    CellDelegate(const CloneImage& image, const MemoryTableModel& model, QObject* parent);

    void SetWriter(Writer writer) { writer_ = std::move(writer); }

    /// The memory row of the cell that was last entered.
    int EnteredRow() const { return enteredRow_; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

  signals:
    /// What was entered is taken, and the cell cursor goes on by so many rows and columns.
    void Entered(int rows, int columns);

  private:
    CellEdit EditOf(const QModelIndex& index) const;
    void Commit(QWidget* editor, int rows, int columns);

    const CloneImage& image_;
    const MemoryTableModel& model_;
    Writer writer_;
    mutable bool isRefused_ = false;
    mutable int enteredRow_ = -1;
};

}  // namespace rqm5
