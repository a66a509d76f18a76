#pragma once

#include <QComboBox>

#include "document/document.h"
#include "memory/bank_layout.h"
#include "memory/memory_table.h"
#include "memory/row_moves.h"

namespace rqm5 {

/// What the Memory page shows and what is selected there, for the commands that work on it: memory rows, what
/// they are called, and edits of them.
class RowSelection
{
  public:
    RowSelection(Document& document, const QComboBox& cbbBank, MemoryTable& table);

    const CloneImage& Image() const { return document_.Image(); }
    MemoryTable& Table() const { return table_; }

    int Selector() const { return cbbBank_.currentIndex(); }

    /// The rows of the group shown.
    RowRange Group() const { return GroupRows(Image(), Selector()); }

    /// The memory rows shown, which are those of the group unless a filter is on.
    const RowList& Shown() const { return table_.MemoryRows(); }
    bool IsFiltered() const { return table_.IsFiltered(); }

    /// The selected memory rows, rising; none in an empty group.
    RowList Rows() const { return table_.SelectedRows(); }

    /// The current memory row, -1 in an empty group.
    int Current() const { return table_.CurrentRow(); }

    /// Where something that is written into the table begins: the current row, and of several selected ones
    /// the first.
    int Top() const;

    /// True where rows can change their places: the group shown is a bank or a fixed group.
    bool IsMovable() const { return Selector() != kSelectAll; }
    MoveGroup Movable() const { return MoveGroupOf(Image(), Selector()); }

    /// "Bank 2, channel 12"; a row in no bank goes by its number.
    Message NameOf(int row) const;

    /// The same of one row, "Bank 2, 15 channels" of several.
    Message NameOf(const RowList& rows) const;

    /// "Bank 2, 100 channels"; with a filter on "Bank 2, the 12 channels shown of 100"
    Message NameOfGroup() const;

    /// "Bank 2"
    Message NameOfSelector() const;

    /// "145.500000 MHz", or that the row is empty.
    Message ContentsOf(int row) const;

    /// One step of the history. The table has the focus afterwards.
    void Edit(const Message& name, const Document::ChangeFunction& change) const;

  private:
    Document& document_;
    const QComboBox& cbbBank_;
    MemoryTable& table_;
};

}  // namespace rqm5
