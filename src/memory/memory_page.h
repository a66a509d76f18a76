#pragma once

#include <QWidget>
#include <vector>

#include "document/document.h"
#include "memory/row_selection.h"
#include "ui/dialogs.h"

class QMenu;

namespace rqm5 {

class BankList;
class ClipboardCommands;
class FilterBox;
class FindBar;
class MoveCommands;
class RowActions;
class RowCommands;

/// The page "Memory": the bank selector, the table of its channels and what can be done with them.
class MemoryPage : public QWidget
{
    Q_OBJECT

  public:
    MemoryPage(Document& document, Dialogs& dialogs, QWidget* parent);

    /// Shows the selected group's rows and labels anew; the current row stays where it was and is selected
    /// whole. Changes of the document are shown without it.
    void UpDateMemData();

    void SelectGroup(int selector);
    int Selector() const;

    /// The current row of the table, counted from 1; 0 when the group is empty.
    int CurrentTableRow() const;
    void GoToFirstRow();

    /// True while a filter hides rows of the group: what goes by table rows is off then.
    bool IsFiltered() const { return Filter() != RowFilter::All; }
    RowFilter Filter() const;

    /// Selects memory rows: in the group shown when that holds the first of them, else in the smallest group
    /// that holds all.
    void GoToRows(const std::vector<int>& rows);

    /// Selects a memory row in its own bank or group.
    void GoToRow(int memoryRow);

    /// The selected memory rows, rising.
    std::vector<int> SelectedRows() const { return selection_.Rows(); }

    FindBar& Finder() { return *finder_; }

    void FocusSelector();
    void FocusTable();

    /// Puts the items for the selected rows into a menu.
    void AddRowItems(QMenu& menu);

    /// Opens the editor for the selected rows, as Enter does.
    void Modify();

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void ReadRequested();
    void WriteRequested();
    void ModifyRequested(int memoryRow);  ///< memory row from 0
    void ModifySeveralRequested(const std::vector<int>& memoryRows);
    void SelectionChanged();
    void Noted(const QString& text);  ///< what an operation has done out of sight; empty for nothing

    /// Notes were typed or pasted into these rows, among others perhaps.
    void NotesEntered(const std::vector<int>& memoryRows);

    /// What the status bar says of the table with the focus is another text now.
    void HintChanged();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void ConnectTable();
    void ShowReplaced();
    void ShowChange(const ImageChange& change);
    QLayout* BuildSelectorRow();
    QLayout* BuildTransferRow();

    void cbbBank_Click();
    void cbbBank_LostFocus();
    bool WriteCell(int row, Column column, const CellInput& input);

    const CloneImage& Image() const { return document_.Image(); }
    void ShowFiltered();
    void ShowCount();
    void ShowAllIfHidden(const std::vector<int>& rows);

    Document& document_;
    Dialogs& dialogs_;
    BankList* cbbBank_;
    FilterBox* filter_;
    FindBar* finder_;
    MemoryTable* table_;
    RowSelection selection_;
    RowCommands* rows_;
    ClipboardCommands* clipboard_;
    MoveCommands* moves_;
    RowActions* actions_;
};

}  // namespace rqm5
