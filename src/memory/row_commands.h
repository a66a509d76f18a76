#pragma once

#include <QObject>

#include "memory/row_selection.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// What the operation buttons of the Memory page do to the selected rows and to the group shown.
class RowCommands : public QObject
{
    Q_OBJECT

  public:
    RowCommands(const RowSelection& selection, Dialogs& dialogs, QWidget& page);

    void cmbClear_Click();
    void cmbClAll_Click();
    void cmbDelete_Click();
    void cmbInsert_Click();
    void cmbEnable_Click();
    void cmbDisable_Click();
    void cmbEnAll_Click();
    void cmbDisAll_Click();

    /// Switches the selected channels off when all of them are on, else on.
    void Toggle();

  signals:
    void Noted(const QString& text);  ///< what an operation has done out of sight; empty for nothing

  private:
    using RowsFunction = void (*)(CloneImage&, const RowList&);

    bool IsShiftable() const;
    bool Confirm(const QString& title, const QString& text, const Message& what);
    void EditRows(const Message& operation, RowsFunction change);
    void EditGroup(const Message& operation, RowsFunction change);
    void HighlightCurrentRow();

    const RowSelection& selection_;
    Dialogs& dialogs_;
    QWidget& page_;
};

}  // namespace rqm5
