#include "memory/row_actions.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <algorithm>

#include "ui/form_texts.h"

namespace rqm5 {
namespace {

/// What has to be there for an item to make sense.
enum class Needs {
    Row,          ///< one selected
    Rows,         ///< several selected
    Channel,      ///< one among the selected rows
    PastableRow,  ///< a row, and channels on the clipboard
    MovableRow,   ///< a row, in a group whose rows can change their places
};

#define TEXT(text) QT_TRANSLATE_NOOP("rqm5::frmMain", text)

}  // namespace

struct RowActions::Item
{
    const char* name;  ///< empty for a separator
    const char* text;
    const char* shortcut;
    const char* hint;
    Needs needs;
    bool needsAllRows;  ///< off while a filter hides rows: it goes by row numbers or empties rows
    void (*run)(RowActions&);
};

const std::vector<RowActions::Item>& RowActions::Items()
{
    static const std::vector<Item> kItems = {
        {"mnuEditCut", TEXT("Cu&t"), "Ctrl+X", TEXT("Put the selected rows on the clipboard and clear them"),
         Needs::Row, true, [](RowActions& to) { to.clipboard_.mnuEditCut_Click(); }},
        {"mnuEditCopy", TEXT("&Copy"), "Ctrl+C", TEXT("Put the selected rows on the clipboard"), Needs::Row,
         false, [](RowActions& to) { to.clipboard_.mnuEditCopy_Click(); }},
        {"mnuEditPaste", TEXT("&Paste"), "Ctrl+V",
         TEXT("Write the channels of the clipboard from the current row on"), Needs::PastableRow, true,
         [](RowActions& to) { to.clipboard_.mnuEditPaste_Click(); }},
        {"mnuEditPasteSpecial", TEXT("Paste Spec&ial..."), "Ctrl+Shift+V",
         TEXT("Write chosen columns of the clipboard into the selected rows"), Needs::PastableRow, true,
         [](RowActions& to) { to.clipboard_.mnuEditPasteSpecial_Click(); }},
        {"mnuEditSelectAll", TEXT("Select &All"), "Ctrl+A", TEXT("Select every row of the table"), Needs::Row,
         false, [](RowActions& to) { to.selection_.Table().selectAll(); }},
        {"", "", "", "", Needs::Row, false, nullptr},
        {"mnuEditClear", TEXT("C&lear"), "", TEXT("Empty the selected rows"), Needs::Row, false,
         [](RowActions& to) { to.rows_.cmbClear_Click(); }},
        {"mnuEditEnable", TEXT("&Enable"), "",
         TEXT("Switch the selected channels on; Space switches on and off"), Needs::Row, false,
         [](RowActions& to) { to.rows_.cmbEnable_Click(); }},
        {"mnuEditDisable", TEXT("&Disable"), "",
         TEXT("Switch the selected channels off; Space switches on and off"), Needs::Row, false,
         [](RowActions& to) { to.rows_.cmbDisable_Click(); }},
        {"", "", "", "", Needs::Row, false, nullptr},
        {"mnuEditFillSeries", TEXT("Fill &Series..."), "", TEXT("Make channels at even distances"),
         Needs::Row, true, [](RowActions& to) { to.clipboard_.mnuEditFillSeries_Click(); }},
        {"mnuEditFillDown", TEXT("Fill Do&wn..."), "Ctrl+D",
         TEXT("Give the selected rows chosen columns of the first of them"), Needs::Rows, true,
         [](RowActions& to) { to.clipboard_.mnuEditFillDown_Click(); }},
        {"", "", "", "", Needs::Row, false, nullptr},
        {"mnuEditMoveUp", TEXT("Mo&ve Up"), "Alt+Up", TEXT("Move the selected rows up by one"),
         Needs::MovableRow, true, [](RowActions& to) { to.moves_.mnuEditMoveUp_Click(); }},
        {"mnuEditMoveDown", TEXT("Move Dow&n"), "Alt+Down", TEXT("Move the selected rows down by one"),
         Needs::MovableRow, true, [](RowActions& to) { to.moves_.mnuEditMoveDown_Click(); }},
        {"mnuEditCopyToBank", TEXT("Copy to &Bank"), "",
         TEXT("Copy the selected channels into empty rows of a bank"), Needs::Channel, false, nullptr},
        {"mnuEditMoveToBank", TEXT("Move to Ban&k"), "",
         TEXT("Move the selected channels into empty rows of a bank"), Needs::Channel, true, nullptr},
        {"mnuEditInsertRow", TEXT("Insert Row &Here"), "",
         TEXT("Put an empty row here; the rows behind it in the group shown move down"), Needs::MovableRow,
         true, [](RowActions& to) { to.moves_.mnuEditInsertRow_Click(); }},
        {"mnuEditDeleteRow", TEXT("Delete Row and Close &Up"), "",
         TEXT("Take the selected rows out; the rows behind them in the group shown move up"),
         Needs::MovableRow, true, [](RowActions& to) { to.moves_.mnuEditDeleteRow_Click(); }},
        {"mnuEditSort", TEXT("Sort &Group"), "",
         TEXT("Sort the rows of the group shown; empty rows come last"), Needs::MovableRow, true, nullptr},
    };
    return kItems;
}

RowActions::RowActions(const RowSelection& selection, RowCommands& rows, ClipboardCommands& clipboard,
                       MoveCommands& moves, QWidget& page)
    : QObject(&page),
      selection_(selection),
      rows_(rows),
      clipboard_(clipboard),
      moves_(moves),
      page_(page),
      contextMenu_(new QMenu(&page)),
      copyToBank_(new QMenu(&page)),
      moveToBank_(new QMenu(&page)),
      sort_(new QMenu(&page))
{
    contextMenu_->setObjectName(QStringLiteral("mnuRows"));
    auto* modify = new QAction(Designed(QT_TR_NOOP("&Modify...")), this);
    modify->setObjectName(QStringLiteral("mnuRowsModify"));
    modify->setStatusTip(Designed(QT_TR_NOOP("Edit the selected channels")));
    connect(modify, &QAction::triggered, this, &RowActions::ModifyRequested);
    contextMenu_->addAction(modify);
    contextMenu_->setDefaultAction(modify);
    contextMenu_->addSeparator();
    for (const Item& item : Items())
        actions_.push_back(MakeAction(item));
    contextMenu_->addActions({actions_.begin(), actions_.end()});

    MemoryTable& table = selection.Table();
    table.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&table, &QWidget::customContextMenuRequested, this, &RowActions::ShowContextMenu);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this, &RowActions::ShowStates);
    connect(table.model(), &QAbstractItemModel::dataChanged, this, &RowActions::ShowStates);
    connect(table.model(), &QAbstractItemModel::modelReset, this, &RowActions::ShowStates);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &RowActions::LookAtClipboard);
    LookAtClipboard();
}

QAction* RowActions::MakeAction(const Item& item)
{
    auto* action = new QAction(QString::fromUtf8(item.text), this);
    if (*item.name == '\0') {
        action->setSeparator(true);
        return action;
    }
    action->setObjectName(QLatin1String(item.name));
    action->setStatusTip(QString::fromUtf8(item.hint));
    action->setShortcut(QKeySequence(QLatin1String(item.shortcut)));
    action->setShortcutContext(Qt::WidgetShortcut);
    selection_.Table().addAction(action);
    if (item.run != nullptr)
        connect(action, &QAction::triggered, this, [this, run = item.run] { run(*this); });
    else
        AddMenu(*action);
    return action;
}

void RowActions::AddMenu(QAction& action)
{
    const QString name = action.objectName();
    if (name == QLatin1String("mnuEditSort")) {
        action.setMenu(sort_);
        AddSortItem("mnuEditSortFrequency", TEXT("By &Frequency"), &MoveCommands::mnuEditSortFrequency_Click);
        AddSortItem("mnuEditSortNote", TEXT("By &Note"), &MoveCommands::mnuEditSortNote_Click);
        AddSortItem("mnuEditSortMode", TEXT("By &Mode"), &MoveCommands::mnuEditSortMode_Click);
        return;
    }
    const bool isMove = name == QLatin1String("mnuEditMoveToBank");
    QMenu* menu = isMove ? moveToBank_ : copyToBank_;
    action.setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu, isMove] { moves_.FillBankMenu(*menu, isMove); });
}

void RowActions::AddSortItem(const char* name, const char* text, void (MoveCommands::*run)())
{
    QAction* item = sort_->addAction(QString::fromUtf8(text));
    item->setObjectName(QLatin1String(name));
    connect(item, &QAction::triggered, &moves_, run);
}

void RowActions::AddTo(QMenu& menu)
{
    // One menu with everything would not fit on a small screen with large letters.
    const auto moves = std::ranges::find(actions_, QStringLiteral("mnuEditMoveUp"), &QAction::objectName);
    menu.addSeparator();
    menu.addActions({actions_.begin(), moves});
    QMenu* rows = menu.addMenu(QString::fromUtf8(TEXT("R&ows")));
    rows->setObjectName(QStringLiteral("mnuEditRows"));
    rows->menuAction()->setStatusTip(
        QString::fromUtf8(TEXT("Move, copy, insert, delete and sort rows of the group shown")));
    rows->addActions({moves, actions_.end()});
}

#undef TEXT

void RowActions::AddPasteKeyTo(QWidget& control)
{
    for (QAction* action : actions_)
        if (action->objectName() == QLatin1String("mnuEditPaste"))
            control.addAction(action);
}

bool RowActions::IsPossible(const Item& item) const
{
    const std::size_t rows = selection_.Rows().size();
    if (rows == 0 || !page_.isEnabled() || (item.needsAllRows && selection_.IsFiltered()))
        return false;
    switch (item.needs) {
        case Needs::Rows:
            return rows > 1;
        case Needs::Channel:
            return !ChannelsAmong(selection_.Image(), selection_.Rows()).empty();
        case Needs::PastableRow:
            return canPaste_;
        case Needs::MovableRow:
            return selection_.IsMovable();
        default:
            return true;
    }
}

void RowActions::ShowStates()
{
    for (std::size_t i = 0; i < actions_.size(); ++i)
        if (!actions_[i]->isSeparator())
            actions_[i]->setEnabled(IsPossible(Items()[i]));
    for (const QAction* action : actions_)
        for (QAction* item :
             action->menu() != nullptr && action->menu() == sort_ ? sort_->actions() : QList<QAction*>())
            item->setEnabled(action->isEnabled());
}

/// Another program's clipboard is asked once and not with every selection: it takes its time.
void RowActions::LookAtClipboard()
{
    canPaste_ = ClipboardCommands::CanPaste();
    ShowStates();
}

void RowActions::ShowContextMenu(const QPoint& place)
{
    MemoryTable& table = selection_.Table();
    if (!table.currentIndex().isValid())
        return;
    // The menu key asks for it at the current row, wherever the pointer is.
    const QRect cell = table.visualRect(table.currentIndex());
    const bool isByMouse = table.viewport()->mapFromGlobal(QCursor::pos()) == place;
    contextMenu_->popup(table.viewport()->mapToGlobal(isByMouse ? place : cell.bottomLeft()));
}

}  // namespace rqm5
