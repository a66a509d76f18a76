#include "app/tool_bar.h"

#include <QIcon>

namespace rqm5 {

namespace {

constexpr int kButtonsBeforeHistory = 3;

struct ButtonRow
{
    const char* key;
    ItemName item;  ///< the menu item that does the same
    const char* toolTip;
};

const ButtonRow kButtons[] = {
    {"新規作成", "mnuFileNew", QT_TRANSLATE_NOOP("rqm5::frmMain", "New")},
    {"開く", "mnuFileOpen", QT_TRANSLATE_NOOP("rqm5::frmMain", "Open")},
    {"上書き保存", "mnuFileSave", QT_TRANSLATE_NOOP("rqm5::frmMain", "Save")},
    {"印刷", "mnuFilePrint", QT_TRANSLATE_NOOP("rqm5::frmMain", "Print")},
    {"ﾍﾙﾌﾟ", "mnuHelpAbout", QT_TRANSLATE_NOOP("rqm5::frmMain", "About")},
};

}  // namespace

ToolBar::ToolBar(const Menus& menus, QWidget* parent) : QToolBar(parent), menus_(menus)
{
    setObjectName(QStringLiteral("tbToolBar"));
    setWindowTitle(tr("Toolbar"));
    setMovable(false);
    for (const ButtonRow& row : kButtons) {
        QAction& item = menus_.Item(row.item);
        QAction* button = addAction(item.icon(), QString());
        button->setData(QString::fromUtf8(row.key));
        button->setText(QString::fromUtf8(row.toolTip));
        button->setStatusTip(item.statusTip());
        // What the menu does not offer now, the button does not either.
        connect(&item, &QAction::enabledChanged, button, &QAction::setEnabled);
    }
    // These show what they would take back, so they are the menu's own.
    QAction* behind = actions().at(kButtonsBeforeHistory);
    insertActions(behind, {&menus_.Item("mnuHistoryUndo"), &menus_.Item("mnuHistoryRedo")});
    insertSeparator(behind);
    insertSeparator(&menus_.Item("mnuHistoryUndo"));
    connect(this, &QToolBar::actionTriggered, this,
            [this](const QAction* button) { tbToolBar_ButtonClick(button->data().toString()); });
}

void ToolBar::tbToolBar_ButtonClick(const QString& key)
{
    for (const ButtonRow& row : kButtons)
        if (key == QString::fromUtf8(row.key))
            menus_.Item(row.item).trigger();
}

}  // namespace rqm5
