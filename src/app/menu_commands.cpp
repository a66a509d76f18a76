#include "app/menu_commands.h"

#include "app/backup_commands.h"
#include "app/change_commands.h"
#include "app/clone_drop.h"
#include "app/compare_commands.h"
#include "app/edit_commands.h"
#include "app/file_commands.h"
#include "app/find_commands.h"
#include "app/history_commands.h"
#include "app/import_commands.h"
#include "app/menus.h"
#include "app/pages.h"
#include "app/port_commands.h"
#include "app/range_news.h"
#include "app/read_option_items.h"
#include "app/recent_files.h"
#include "app/side_windows.h"
#include "app/standing_warnings.h"
#include "app/status_bar.h"
#include "app/tool_bar.h"
#include "app/transfer_commands.h"
#include "app/transfer_shell.h"
#include "app/write_option_items.h"

namespace rqm5 {

MenuCommands::MenuCommands(Document& document, const WindowParts& parts, QMainWindow& window)
    : QObject(&window), document_(document), parts_(parts), window_(window)
{
    ConnectFileMenu();
    ConnectTransferMenus();
    ConnectOtherMenus();
    ConnectFiles();
    ConnectNews();
}

void MenuCommands::Connect(ItemName name, std::function<void()> command)
{
    // What was typed into a bank box counts as left once a menu is chosen. A size that is refused stops the
    // command, unless its check mark has changed already.
    QAction& item = parts_.menus->Item(name);
    connect(&item, &QAction::triggered, this, [this, &item, command = std::move(command)] {
        parts_.statusBar->ShowNote({});
        if (parts_.pages->Banks().CommitPending() || item.isCheckable())
            command();
    });
}

void MenuCommands::ConnectFileMenu()
{
    Connect("mnuFileNew", [this] { parts_.files->mnuFileNew_Click(); });
    Connect("mnuFileOpen", [this] { parts_.files->mnuFileOpen_Click(); });
    Connect("mnuFileSave", [this] { parts_.files->mnuFileSave_Click(); });
    Connect("mnuFileSaveAs", [this] { parts_.files->mnuFileSaveAs_Click(); });
    Connect("mnuFileImport", [this] { parts_.imports->mnuFileImport_Click(); });
    Connect("mnuFileExport", [this] { parts_.files->mnuFileExport_Click(); });
    Connect("mnuFileExportList", [this] { parts_.imports->mnuFileExportList_Click(); });
    Connect("mnuFileRepair", [this] { parts_.files->mnuFileRepair_Click(); });
    Connect("mnuFileBackups", [this] { parts_.backups->mnuFileBackups_Click(); });
    Connect("mnuFilePrint", [this] { parts_.sides->mnuFilePrint_Click(); });
    Connect("mnuFileExit", [this] { window_.close(); });
}

void MenuCommands::ConnectTransferMenus()
{
    Connect("mnuReAll", [this] { parts_.shell->Start(Transfer::ReadAll); });
    Connect("mnuReMemory", [this] { parts_.shell->StartOn(Tab::Memory, Transfer::ReadMemory); });
    Connect("mnuReSettings", [this] { parts_.shell->StartOn(Tab::Settings1, Transfer::ReadSettings); });
    Connect("mnuWrAll", [this] { parts_.shell->Start(Transfer::WriteAll); });
    Connect("mnuWrMemory", [this] { parts_.shell->StartOn(Tab::Memory, Transfer::WriteMemory); });
    Connect("mnuWrSettings", [this] { parts_.shell->StartOn(Tab::Settings1, Transfer::WriteSettings); });
    Connect("mnuWrChanges", [this] { parts_.changes->mnuWrChanges_Click(); });
    Connect("mnuReVerify", [this] { parts_.readOptions->mnuReVerify_Click(); });
    Connect("mnuWrBackup", [this] { parts_.writeOptions->Keep(); });
    Connect("mnuWrVerify", [this] { parts_.writeOptions->Keep(); });
    Connect("mnuWrBackupFolder", [this] { parts_.writeOptions->mnuWrBackupFolder_Click(); });
}

void MenuCommands::ConnectOtherMenus()
{
    Connect("mnuHistoryUndo", [this] { document_.History().undo(); });
    Connect("mnuHistoryRedo", [this] { document_.History().redo(); });
    Connect("mnuEditUndo", [this] { parts_.edits->mnuEditUndo_Click(); });
    Connect("mnuEditFind", [this] { parts_.finds->mnuEditFind_Click(); });
    Connect("mnuEditFindNext", [this] { parts_.finds->mnuEditFindNext_Click(); });
    Connect("mnuEditFindPrevious", [this] { parts_.finds->mnuEditFindPrevious_Click(); });
    Connect("mnuToolsDuplicates", [this] { parts_.finds->mnuToolsDuplicates_Click(); });
    Connect("mnuToolsCompare", [this] { parts_.compare->mnuToolsCompare_Click(); });
    Connect("mnuViewToolbar",
            [this] { parts_.toolBar->setVisible(parts_.menus->Item("mnuViewToolbar").isChecked()); });
    Connect("mnuStatusBar", [this] {
        parts_.statusBar->setVisible(parts_.menus->Item("mnuStatusBar").isChecked());
        parts_.warnings->Show();
    });
    Connect("mnuToolsOptions", [this] { parts_.ports->mnuToolsOptions_Click(); });
    Connect("mnuHelpContents", [this] { parts_.sides->mnuHelpContents_Click(); });
    Connect("mnuHelpAbout", [this] { parts_.sides->mnuHelpAbout_Click(); });
    Connect("mnuViewDiagnostics", [this] {
        parts_.sides->mnuViewDiagnostics_Click(parts_.menus->Item("mnuViewDiagnostics").isChecked());
    });
    Connect("mnuViewHistory", [this] {
        parts_.history->mnuViewHistory_Click(parts_.menus->Item("mnuViewHistory").isChecked());
    });
}

void MenuCommands::ConnectFiles()
{
    connect(parts_.files, &FileCommands::Used, parts_.recentFiles, &RecentFiles::Add);
    connect(parts_.files, &FileCommands::Refused, parts_.recentFiles, &RecentFiles::Remove);
    const auto open = [this](const QString& path) {
        if (parts_.pages->Banks().CommitPending())
            parts_.files->OpenAnother(path);
    };
    connect(parts_.recentFiles, &RecentFiles::Chosen, parts_.files, open);
    connect(new CloneDrop(window_, parts_.menus->Item("mnuFileOpen")), &CloneDrop::Dropped, parts_.files,
            open);
    connect(parts_.files, &FileCommands::Noted, parts_.statusBar, &StatusBar::ShowNote);
    connect(parts_.files, &FileCommands::NotesLost, this,
            [this](const Message& text) { parts_.warnings->Set(StandingWarnings::Kind::Notes, text); });
    connect(parts_.files, &FileCommands::NewDone, this,
            [this] { parts_.pages->Memory().SelectGroup(kSelectAll); });
    ConnectImportNotes(*parts_.imports, *parts_.statusBar, *parts_.messageBar);
}

void MenuCommands::ConnectNews()
{
    connect(parts_.transfers, &TransferCommands::OutOfRange, parts_.messageBar,
            [this](const std::vector<Message>& rows) { TellOutOfRange(rows, *parts_.messageBar); });
    parts_.sides->MarkDiagnostics(parts_.menus->Item("mnuViewDiagnostics"));
    connect(&parts_.pages->Memory(), &MemoryPage::HintChanged, parts_.statusBar, [this] {
        // What the keyboard has just gone to, wherever the pointer rests.
        parts_.statusBar->ShowPointerHint({});
        parts_.statusBar->ShowHintOf(window_.focusWidget());
    });
    connect(parts_.ports, &PortCommands::PortChosen, parts_.statusBar, &StatusBar::ShowPort);
}

}  // namespace rqm5
