#pragma once

#include <QWidget>
#include <span>
#include <vector>

#include "document/document.h"
#include "memory/bank_layout.h"
#include "ui/dialogs.h"

class QBoxLayout;

namespace rqm5 {

class BankList;
class FilterBox;
class FindBar;
class MemoryTable;

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

    /// The memory row that is current, from 0; -1 when nothing is shown.
    int CurrentMemoryRow() const;

    /// True while a filter hides rows of the group: what goes by table rows is off then.
    bool IsFiltered() const;

    /// Selects a memory row: in the group shown when that holds all of these rows, else in the smallest group
    /// that does.
    void GoToRows(const std::vector<int>& rows);

    /// Selects a memory row in its own bank or group.
    void GoToRow(int memoryRow);

    FindBar& Finder() { return *finder_; }

    void FocusSelector();
    void FocusTable();

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void ReadRequested();
    void WriteRequested();
    void ModifyRequested(int memoryRow);  ///< memory row from 0
    void Noted(const QString& text);      ///< what an operation has done out of sight; empty for nothing

    /// What the status bar says of the table with the focus is another text now.
    void HintChanged();

  private:
    struct Operation;

    void ShowReplaced();
    void ShowChange(const ImageChange& change);
    QLayout* BuildSelectorRow();
    QWidget* BuildOperations();
    QLayout* BuildTransferRow();
    void AddButtons(QBoxLayout& layout, std::span<const Operation> operations);

    void cbbBank_Click();
    void cbbBank_LostFocus();
    void cmbClear_Click();
    void cmbClAll_Click();
    void cmbDelete_Click();
    void cmbInsert_Click();
    void cmbEnable_Click();
    void cmbDisable_Click();
    void cmbEnAll_Click();
    void cmbDisAll_Click();

    const CloneImage& Image() const { return document_.Image(); }
    RowRange Group() const { return GroupRows(Image(), Selector()); }
    void ShowFiltered();
    void ShowAllIfHidden(const std::vector<int>& rows);
    RowRange SelectedRow() const;
    bool IsShiftable() const;
    QString NameOfRow(int row) const;
    QString NameOfGroup() const;
    QString ContentsOf(int row) const;
    bool Confirm(const QString& title, const QString& text, const QString& what);
    void Edit(const QString& name, const Document::ChangeFunction& change);
    void EditRow(const QString& operation, void (*change)(CloneImage&, RowRange));
    void EditGroup(const QString& operation, void (*change)(CloneImage&, RowRange));

    Document& document_;
    Dialogs& dialogs_;
    BankList* cbbBank_;
    FilterBox* filter_;
    FindBar* finder_;
    MemoryTable* table_;
};

}  // namespace rqm5
