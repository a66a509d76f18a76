#include "app/window_parts.h"

#include <QMenuBar>
#include <QVBoxLayout>

#include "app/backup_commands.h"
#include "app/change_commands.h"
#include "app/compare_commands.h"
#include "app/current_file.h"
#include "app/desktop_news.h"
#include "app/edit_commands.h"
#include "app/file_commands.h"
#include "app/file_news.h"
#include "app/find_commands.h"
#include "app/history_commands.h"
#include "app/import_commands.h"
#include "app/language_menu.h"
#include "app/menus.h"
#include "app/note_news.h"
#include "app/offers.h"
#include "app/pages.h"
#include "app/port_commands.h"
#include "app/read_option_items.h"
#include "app/recent_files.h"
#include "app/recovery.h"
#include "app/side_windows.h"
#include "app/spectrum_commands.h"
#include "app/standing_warnings.h"
#include "app/status_bar.h"
#include "app/tool_bar.h"
#include "app/transfer_bar.h"
#include "app/transfer_commands.h"
#include "app/transfer_shell.h"
#include "app/write_option_items.h"
#include "ui/message_bar.h"

namespace rqm5 {

namespace {

void MakeFrame(Document& document, Dialogs& dialogs, QMainWindow& window, WindowParts& parts)
{
    parts.menus = new Menus(*window.menuBar());
    parts.toolBar = new ToolBar(*parts.menus, &window);
    window.addToolBar(parts.toolBar);
    new LanguageMenu(parts.menus->Menu("mnuView"), &window);
    parts.statusBar = new StatusBar(&window);
    window.setStatusBar(parts.statusBar);

    auto* middle = new QWidget(&window);
    auto* column = new QVBoxLayout(middle);
    parts.pages = new Pages(document, dialogs, middle);
    parts.pages->Memory().AddRowItems(parts.menus->Menu("mnuEdit"));
    parts.transferBar = new TransferBar(middle);
    parts.messageBar = new MessageBar(middle);
    column->addWidget(parts.messageBar);
    column->addWidget(&parts.pages->Tabs(), 1);
    column->addWidget(parts.transferBar);
    window.setCentralWidget(middle);
}

void MakeCommands(Document& document, RadioLink& link, Dialogs& dialogs, const StartOptions& options,
                  QMainWindow& window, WindowParts& parts)
{
    parts.warnings = new StandingWarnings(*parts.statusBar, *parts.messageBar);
    parts.currentFile = new CurrentFile(document, &window);
    parts.files = new FileCommands(document, *parts.currentFile, dialogs, window);
    parts.imports = new ImportCommands(document, *parts.currentFile, dialogs, window);
    new FileNews(document, *parts.currentFile, *parts.files, *parts.messageBar);
    new NoteNews(document, parts.pages->Memory(), *parts.messageBar);
    parts.edits = new EditCommands(document, dialogs, *parts.pages, window);
    parts.history = new HistoryCommands(document, *parts.menus, window);
    parts.finds = new FindCommands(document, *parts.pages, window);
    parts.ports = new PortCommands(link.Port(), dialogs, options, window);
    QObject::connect(parts.ports, &PortCommands::PortChosen, &link,
                     [&link](int /*number*/, const QString& /*device*/, bool isPresent) {
                         if (!isPresent)
                             link.Knowledge().Leave();
                     });
    parts.readOptions = new ReadOptionItems(*parts.menus, &window);
    parts.writeOptions = new WriteOptionItems(*parts.menus, dialogs, window);
    parts.transfers = new TransferCommands(document, link, dialogs, window);
    parts.changes = new ChangeCommands(document, link, *parts.transfers, dialogs, window);
    parts.offers =
        new Offers(document, *parts.transfers, *parts.writeOptions, *parts.menus, *parts.messageBar);
    new DesktopNews(*parts.transfers, options, window);
    parts.shell = new TransferShell(*parts.transfers, *parts.menus, *parts.pages, *parts.history,
                                    *parts.transferBar, *parts.statusBar, window);
    parts.sides = new SideWindows(document, link, *parts.transfers, dialogs, *parts.ports, *parts.pages,
                                  options, window);
    new SpectrumCommands(document, dialogs, *parts.pages, *parts.transfers,
                         parts.menus->Item("mnuViewSpectrum"), window);
    parts.compare = new CompareCommands(document, link, *parts.transfers, dialogs, *parts.pages, window);
    parts.backups =
        new BackupCommands(document, *parts.files, *parts.transfers, *parts.compare, dialogs, window);
    parts.recovery = new Recovery(document, options.stateFolder, options.recoveryDelay, &window);
    parts.recovery->SetMark([files = parts.currentFile] { return files->KnownMark(); });
    parts.recentFiles = new RecentFiles(parts.menus->Menu("mnuFile"), &window);
}

}  // namespace

WindowParts MakeWindowParts(Document& document, RadioLink& link, Dialogs& dialogs,
                            const StartOptions& options, QMainWindow& window)
{
    WindowParts parts;
    MakeFrame(document, dialogs, window, parts);
    MakeCommands(document, link, dialogs, options, window, parts);
    return parts;
}

}  // namespace rqm5
