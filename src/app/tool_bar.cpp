#include "app/tool_bar.h"

#include <QIcon>

#include "language/language.h"
#include "ui/form_texts.h"

namespace rqm5 {

namespace {

struct ButtonRow
{
    const char* key;  ///< none for a button that nobody asks for by its key
    ItemName item;    ///< the menu item that does the same
    const char* text;
    bool isLastOfGroup = false;
};

#define TEXT(text) QT_TRANSLATE_NOOP("rqm5::frmMain", text)

const ButtonRow kButtons[] = {
    {"新規作成", "mnuFileNew", TEXT("New")},           {"開く", "mnuFileOpen", TEXT("Open")},
    {"上書き保存", "mnuFileSave", TEXT("Save"), true}, {nullptr, "mnuHistoryUndo", nullptr},
    {nullptr, "mnuHistoryRedo", nullptr, true},        {nullptr, "mnuEditFind", nullptr, true},
    {nullptr, "mnuReAll", TEXT("Read ALL")},           {nullptr, "mnuWrAll", TEXT("Write ALL"), true},
    {"印刷", "mnuFilePrint", TEXT("Print")},           {"ﾍﾙﾌﾟ", "mnuHelpAbout", TEXT("About")},
};

#undef TEXT

/// "Undo Clear All (Ctrl+Z)", from the text "&Undo Clear All" and the menu item's shortcut.
void ShowTip(QAction& button, const QAction& item)
{
    QString tip = WithoutMnemonic(button.text());
    if (tip.endsWith(QLatin1String("...")))
        tip.chop(3);
    const QString keys = item.shortcut().toString(QKeySequence::NativeText);
    button.setToolTip(keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys));
}

}  // namespace

ToolBar::ToolBar(const Menus& menus, QWidget* parent) : QToolBar(parent), menus_(menus)
{
    setObjectName(QStringLiteral("tbToolBar"));
    setWindowTitle(Designed(QT_TR_NOOP("Toolbar")));
    setMovable(false);
    for (const ButtonRow& row : kButtons) {
        QAction& item = menus_.Item(row.item);
        // Buttons without a text of their own show what the menu does: what would be undone.
        QAction* button = row.text != nullptr ? AddButton(item, row.text) : &item;
        if (row.key != nullptr)
            button->setData(QString::fromUtf8(row.key));
        else if (button != &item)
            connect(button, &QAction::triggered, &item, &QAction::trigger);
        addAction(button);
        ShowTip(*button, item);
        const auto showTip = [button, &item] { ShowTip(*button, item); };
        connect(button, &QAction::changed, this, showTip);
        connect(&Language::OfProgram(), &Language::Changed, this, showTip);  // keys have names, too
        if (row.isLastOfGroup)
            addSeparator();
    }
    connect(this, &QToolBar::actionTriggered, this,
            [this](const QAction* button) { tbToolBar_ButtonClick(button->data().toString()); });
}

QAction* ToolBar::AddButton(QAction& item, const char* text)
{
    auto* button = new QAction(item.icon(), QString::fromUtf8(text), this);
    button->setObjectName(item.objectName().replace(QLatin1String("mnu"), QLatin1String("tb")));
    button->setStatusTip(item.statusTip());
    // What the menu does not offer now, the button does not either.
    connect(&item, &QAction::enabledChanged, button, &QAction::setEnabled);
    return button;
}

void ToolBar::tbToolBar_ButtonClick(const QString& key)
{
    for (const ButtonRow& row : kButtons)
        if (row.key != nullptr && key == QString::fromUtf8(row.key))
            menus_.Item(row.item).trigger();
}

}  // namespace rqm5
