#pragma once

#include <QMenu>
#include <QObject>

#include "memory/row_selection.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Moves rows about within the group shown, and channels to other banks.
class MoveCommands : public QObject
{
    Q_OBJECT

  public:
    MoveCommands(const RowSelection& selection, Dialogs& dialogs, QWidget& page);

    void mnuEditMoveUp_Click() { Shift(true); }
    void mnuEditMoveDown_Click() { Shift(false); }
    void mnuEditInsertRow_Click();
    void mnuEditDeleteRow_Click();
    void mnuEditSortFrequency_Click() { Sort(SortKey::Frequency, MESSAGE("Sort by Frequency (%1)")); }
    void mnuEditSortNote_Click() { Sort(SortKey::Note, MESSAGE("Sort by Note (%1)")); }
    void mnuEditSortMode_Click() { Sort(SortKey::Mode, MESSAGE("Sort by Mode (%1)")); }

    /// Moves the selected rows to before a row of the group.
    void Drag(int before);

    /// Fills a menu with the banks, what they hold, and whether the selected channels find room there.
    void FillBankMenu(QMenu& menu, bool isMove);

  private:
    void Shift(bool isUp);
    void Sort(SortKey key, const char* name);
    void MoveTo(const std::function<RowList(CloneImage&)>& move);
    void ToBank(int bank, bool isMove);

    const RowSelection& selection_;
    Dialogs& dialogs_;
    QWidget& page_;
};

}  // namespace rqm5
