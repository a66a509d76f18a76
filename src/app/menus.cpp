#include "app/menus.h"

#include <QIcon>
#include <QMenu>

#include "app/icons.h"

namespace rqm5 {

namespace {

enum class During { Stays, Off };  ///< what becomes of an item while a transfer runs

struct ItemRow
{
    const char* menu;
    const char* name;  ///< empty for a separator
    const char* text;
    const char* shortcut;
    const char* hint;
    During during;
};

struct MenuRow
{
    const char* name;
    const char* text;
};

#define TEXT(text) QT_TRANSLATE_NOOP("rqm5::frmMain", text)

constexpr MenuRow kMenus[] = {
    {"mnuFile", TEXT("&File")},    {"mnuEdit", TEXT("&Edit")},      {"mnuView", TEXT("&View")},
    {"mnuRead", TEXT("Read(&R)")}, {"mnuWrite", TEXT("Write(&W)")}, {"mnuTools", TEXT("&Tools")},
    {"mnuHelp", TEXT("&Help")},
};

constexpr ItemRow kItems[] = {
    {"mnuFile", "mnuFileNew", TEXT("&New"), "Ctrl+N", TEXT("Start with empty memories and default settings"),
     During::Off},
    {"mnuFile", "mnuFileOpen", TEXT("&Open..."), "Ctrl+O", TEXT("Open a clone file"), During::Off},
    {"mnuFile", "mnuFileSave", TEXT("&Save"), "Ctrl+S", TEXT("Save to the current file"), During::Off},
    {"mnuFile", "mnuFileSaveAs", TEXT("Save &As..."), "Ctrl+Shift+S", TEXT("Save to another file"),
     During::Off},
    {"mnuFile", "", "", "", "", During::Stays},
    {"mnuFile", "mnuFileImport", TEXT("&Import..."), "", TEXT("Take VFO bands and channels from a CSV file"),
     During::Off},
    {"mnuFile", "mnuFileExport", TEXT("&Export..."), "", TEXT("Write VFO bands and channels to a CSV file"),
     During::Off},
    {"mnuFile", "", "", "", "", During::Stays},
    {"mnuFile", "mnuFilePrint", TEXT("&Print..."), "Ctrl+P", TEXT("Print settings, VFO bands and channels"),
     During::Off},
    {"mnuFile", "", "", "", "", During::Stays},
    {"mnuFile", "mnuFileExit", TEXT("E&xit"), "Ctrl+Q", TEXT("Close the program"), During::Stays},

    {"mnuEdit", "mnuEditUndo", TEXT("&Modify..."), "F2", TEXT("Edit the selected channel or VFO band"),
     During::Off},

    {"mnuView", "mnuViewToolbar", TEXT("&Toolbar"), "", TEXT("Show or hide the toolbar"), During::Stays},
    {"mnuView", "mnuStatusBar", TEXT("&Status Bar"), "", TEXT("Show or hide the status bar"), During::Stays},
    {"mnuView", "mnuViewDiagnostics", TEXT("&Diagnostics"), "",
     TEXT("Send single read commands and see the replies"), During::Stays},

    {"mnuRead", "mnuReAll", TEXT("ALL(&A)"), "", TEXT("Read everything from the receiver"), During::Off},
    {"mnuRead", "mnuReMemory", TEXT("Memory(&M)"), "",
     TEXT("Read the channels of the group shown on the Memory page"), During::Off},
    {"mnuRead", "mnuReSettings", TEXT("Settings(&S)"), "", TEXT("Read the settings and the VFO bands"),
     During::Off},

    {"mnuWrite", "mnuWrAll", TEXT("ALL(&A)"), "", TEXT("Write everything to the receiver"), During::Off},
    {"mnuWrite", "mnuWrMemory", TEXT("Memory(&M)"), "",
     TEXT("Write the channels of the group shown on the Memory page"), During::Off},
    {"mnuWrite", "mnuWrSettings", TEXT("Settings(&S)"), "", TEXT("Write the settings and the VFO bands"),
     During::Off},
    {"mnuWrite", "", "", "", "", During::Stays},
    {"mnuWrite", "mnuWrBackup", TEXT("Keep a &backup before writing"), "",
     TEXT("Read what a write will replace, and save it, before anything is written"), During::Off},
    {"mnuWrite", "mnuWrVerify", TEXT("&Verify after writing"), "",
     TEXT("Read back what was written, and list what differs"), During::Off},
    {"mnuWrite", "mnuWrBackupFolder", TEXT("Backup &Folder..."), "", TEXT("Choose where backups are kept"),
     During::Off},

    {"mnuTools", "mnuToolsOptions", TEXT("COM Port Setup(&C)"), "",
     TEXT("Choose the serial port of the receiver's cable"), During::Off},

    {"mnuHelp", "mnuHelpContents", TEXT("&Contents"), "F1", TEXT("Show the manual"), During::Stays},
    {"mnuHelp", "mnuHelpAbout", TEXT("&About..."), "", TEXT("About this program"), During::Off},
};

#undef TEXT

void AddItem(QMenu& menu, const ItemRow& row)
{
    if (*row.name == '\0') {
        menu.addSeparator();
        return;
    }
    auto* action = new QAction(QString::fromUtf8(row.text), &menu);
    action->setObjectName(QLatin1String(row.name));
    action->setStatusTip(QString::fromUtf8(row.hint));
    action->setIcon(IconOf(row.name));
    if (*row.shortcut != '\0')
        action->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
    menu.addAction(action);
}

}  // namespace

Menus::Menus(QMenuBar& bar) : QObject(&bar), bar_(bar)
{
    for (const MenuRow& row : kMenus) {
        QMenu* menu = bar.addMenu(QString::fromUtf8(row.text));
        menu->setObjectName(QLatin1String(row.name));
        for (const ItemRow& item : kItems)
            if (QLatin1String(item.menu) == QLatin1String(row.name))
                AddItem(*menu, item);
    }
    for (const char* name : {"mnuViewToolbar", "mnuStatusBar", "mnuWrBackup", "mnuWrVerify"})
        Item(name).setCheckable(true);
    for (const char* name : {"mnuViewToolbar", "mnuStatusBar"})
        Item(name).setChecked(true);
    Item("mnuFileExit").setMenuRole(QAction::QuitRole);
    Item("mnuHelpAbout").setMenuRole(QAction::AboutRole);
}

QAction& Menus::Item(const char* name) const
{
    auto* action = bar_.findChild<QAction*>(QLatin1String(name));
    Q_ASSERT(action != nullptr);
    return *action;
}

void Menus::SetTransferRunning(bool isRunning)
{
    isTransferRunning_ = isRunning;
    SetItemStates();
}

void Menus::SetModifyPossible(bool isPossible)
{
    isModifyPossible_ = isPossible;
    SetItemStates();
}

void Menus::SetItemStates()
{
    for (const ItemRow& row : kItems)
        if (row.during == During::Off)
            Item(row.name).setEnabled(!isTransferRunning_);
    Item("mnuEditUndo").setEnabled(!isTransferRunning_ && isModifyPossible_);
}

}  // namespace rqm5
