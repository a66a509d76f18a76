#include "memory/move_commands.h"

#include "language/translated.h"
#include "memory/channel_operations.h"

namespace rqm5 {

MoveCommands::MoveCommands(const RowSelection& selection, Dialogs& dialogs, QWidget& page)
    : QObject(&page), selection_(selection), dialogs_(dialogs), page_(page)
{
}

/// Runs a move, unless every row would stay in its place; the moved rows stay selected.
void MoveCommands::MoveTo(const std::function<RowList(CloneImage&)>& move)
{
    const RowList rows = selection_.Rows();
    if (rows.empty() || !selection_.IsMovable())
        return;
    CloneImage after = selection_.Image();
    const RowList moved = move(after);
    const int column = selection_.Table().currentIndex().column();
    if (moved != rows || after != selection_.Image())
        selection_.Edit({MESSAGE("Move (%1)"), {selection_.NameOf(rows)}},
                        [&](CloneImage& image) { move(image); });
    selection_.Table().SelectRows(moved, column);
}

void MoveCommands::Shift(bool isUp)
{
    MoveTo([group = selection_.Movable(), rows = selection_.Rows(), isUp](CloneImage& image) {
        return ShiftRows(image, group, rows, isUp);
    });
}

void MoveCommands::Drag(int before)
{
    MoveTo([group = selection_.Movable(), rows = selection_.Rows(), before](CloneImage& image) {
        return MoveRows(image, group, rows, before);
    });
}

void MoveCommands::mnuEditInsertRow_Click()
{
    const int row = selection_.Current();
    if (row < 0 || !selection_.IsMovable())
        return;
    const MoveGroup group = selection_.Movable();
    CloneImage after = selection_.Image();
    if (!InsertRow(after, group, row)) {
        const Message remedy(
            MESSAGE("Every row of %1 from here on holds a channel or a note. Clear one, or make the "
                    "bank larger on the Bank page."),
            {selection_.NameOfSelector()});
        dialogs_.Ask(&page_, {.title = tr("Insert Row Here"),
                              .text = tr("There is no empty row behind it."),
                              .details = Translated(remedy),
                              .icon = QMessageBox::Information});
        return;
    }
    selection_.Edit({MESSAGE("Insert Row (%1)"), {selection_.NameOf(row)}},
                    [=](CloneImage& image) { InsertRow(image, group, row); });
    selection_.Table().SelectRows({row}, 0);
}

void MoveCommands::mnuEditDeleteRow_Click()
{
    const RowList rows = selection_.Rows();
    if (rows.empty() || !selection_.IsMovable())
        return;
    const MoveGroup group = selection_.Movable();
    selection_.Edit({MESSAGE("Delete Row (%1)"), {selection_.NameOf(rows)}},
                    [=](CloneImage& image) { DeleteRows(image, group, rows); });
    selection_.Table().SelectRows({rows.front()}, 0);
}

void MoveCommands::Sort(SortKey key, const char* name)
{
    const MoveGroup group = selection_.Movable();
    if (selection_.IsMovable() && group.rows.count > 0)
        selection_.Edit({name, {selection_.NameOfSelector()}},
                        [=](CloneImage& image) { SortRows(image, group, key); });
}

void MoveCommands::FillBankMenu(QMenu& menu, bool isMove)
{
    menu.clear();
    const CloneImage& image = selection_.Image();
    const std::size_t wanted = ChannelsAmong(image, selection_.Rows()).size();
    for (int bank = 0; bank < kBanks; ++bank) {
        const RowRange rows = GroupRows(image, bank);
        if (rows.count == 0)
            continue;
        const std::size_t room = EmptyRows(image, rows).size();
        QAction* item = menu.addAction(tr("%1 (%2 of %3)")
                                           .arg(Translated(SelectorText(bank)))
                                           .arg(static_cast<std::size_t>(rows.count) - room)
                                           .arg(rows.count));
        item->setEnabled(room >= wanted && bank != selection_.Selector());
        connect(item, &QAction::triggered, this, [this, bank, isMove] { ToBank(bank, isMove); });
    }
}

void MoveCommands::ToBank(int bank, bool isMove)
{
    const CloneImage& image = selection_.Image();
    const RowList from = ChannelsAmong(image, selection_.Rows());
    const RowList to = EmptyRows(image, GroupRows(image, bank));
    if (from.empty() || to.size() < from.size())
        return;
    const char* name = isMove ? MESSAGE("Move to %1 (%2)") : MESSAGE("Copy to %1 (%2)");
    selection_.Edit({name, {SelectorText(bank), selection_.NameOf(from)}}, [=](CloneImage& after) {
        CopyRows(after, from, to);
        if (isMove)
            ClearRows(after, from);
    });
}

}  // namespace rqm5
