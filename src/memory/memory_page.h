#pragma once

#include <QWidget>
#include <span>

#include "image/clone_image.h"
#include "memory/bank_layout.h"
#include "ui/dialogs.h"

class QComboBox;
class QBoxLayout;

namespace rqm5 {

class MemoryTable;

/// The page "Memory": the bank selector, the table of its channels and what can be done with them.
class MemoryPage : public QWidget
{
    Q_OBJECT

  public:
    MemoryPage(CloneImage& image, Dialogs& dialogs, QWidget* parent);

    /// Shows the selected group's rows anew; the current row stays where it was and is selected whole.
    void UpDateMemData();

    /// Sets number and labels of the table's rows for the selected group.
    void BuildChannelLabels();

    void SelectGroup(int selector);
    int Selector() const;

    /// The current row of the table, counted from 1; 0 when the group is empty.
    int CurrentTableRow() const;
    void GoToFirstRow();

    /// Disables the page while a transfer runs.
    void SetTransferRunning(bool running);
    void FocusSelector();

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void Edited();
    void ReadRequested();
    void WriteRequested();
    void ModifyRequested(int memoryRow);  ///< memory row from 0
    void SelectorChanged();

  private:
    struct Operation;

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

    RowRange Group() const { return GroupRows(image_, Selector()); }
    RowRange SelectedRow() const;
    bool IsShiftable() const;
    bool Confirm(const QString& title, const QString& text, const QString& details = {});
    void FinishOperation(bool refresh = true);

    CloneImage& image_;
    Dialogs& dialogs_;
    QComboBox* cbbBank_;
    MemoryTable* table_;
};

}  // namespace rqm5
