#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <vector>

#include "memory/clipboard_commands.h"
#include "memory/move_commands.h"
#include "memory/row_commands.h"

namespace rqm5 {

/// The items for the selected rows: of the Edit menu and of the table's own menu, and the keys that the table
/// has for them. They are keys of the table only, so that boxes and lists keep theirs.
class RowActions : public QObject
{
    Q_OBJECT

  public:
    RowActions(const RowSelection& selection, RowCommands& rows, ClipboardCommands& clipboard,
               MoveCommands& moves, QWidget& page);

    void AddTo(QMenu& menu);

    /// Gives Paste its key in another control too, which has no use for it.
    void AddPasteKeyTo(QWidget& control);

    /// Switches on what can be done with what is selected.
    void ShowStates();

  signals:
    void ModifyRequested();

  private:
    struct Item;
    static const std::vector<Item>& Items();

    QAction* MakeAction(const Item& item);
    void AddMenu(QAction& action);
    void AddSortItem(const char* name, const char* text, void (MoveCommands::*run)());
    bool IsPossible(const Item& item) const;
    void LookAtClipboard();
    void ShowContextMenu(const QPoint& place);

    const RowSelection& selection_;
    RowCommands& rows_;
    ClipboardCommands& clipboard_;
    MoveCommands& moves_;
    QWidget& page_;
    QMenu* contextMenu_;
    QMenu* copyToBank_;
    QMenu* moveToBank_;
    QMenu* sort_;
    std::vector<QAction*> actions_;
    bool canPaste_ = false;
};

}  // namespace rqm5
