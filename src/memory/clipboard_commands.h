#pragma once

#include <QMimeData>
#include <QObject>

#include "memory/paste_plan.h"
#include "memory/row_selection.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Cut, copy and paste of rows, and what is filled into several of them.
class ClipboardCommands : public QObject
{
    Q_OBJECT

  public:
    ClipboardCommands(const RowSelection& selection, Dialogs& dialogs, QWidget& page);

    void mnuEditCut_Click();
    void mnuEditCopy_Click();
    void mnuEditPaste_Click();
    void mnuEditPasteSpecial_Click();
    void mnuEditFillSeries_Click();
    void mnuEditFillDown_Click();

    /// Writes the channels that were dropped from a memory row on.
    void Drop(const QMimeData& data, int row);

    /// True when the clipboard may hold channels.
    static bool CanPaste();

  signals:
    void Written(const RowList& rows);  ///< channels have come to these memory rows

  private:
    RowList RowsFrom(int row) const;
    void Paste(const std::vector<ListedChannel>& channels, int row);
    void Take(const Message& operation, const PastePlan& plan, bool isShown);
    void TellNothing(const Message& title);

    const RowSelection& selection_;
    Dialogs& dialogs_;
    QWidget& page_;
    Parts specialParts_ = {kMode};  ///< what was chosen last
    Parts downParts_ = {kMode};
};

}  // namespace rqm5
