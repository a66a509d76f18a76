#pragma once

#include <QMainWindow>

#include "app/start_options.h"
#include "document/document.h"
#include "link/radio_link.h"
#include "ui/dialogs.h"

namespace rqm5 {

class BackupCommands;
class ChangeCommands;
class CompareCommands;
class CurrentFile;
class EditCommands;
class FileCommands;
class FindCommands;
class HistoryCommands;
class ImportCommands;
class Menus;
class MessageBar;
class Offers;
class Pages;
class PortCommands;
class ReadOptionItems;
class RecentFiles;
class Recovery;
class SideWindows;
class StandingWarnings;
class StatusBar;
class ToolBar;
class TransferBar;
class TransferCommands;
class TransferShell;
class WriteOptionItems;

/// What the main window is made of. All of it belongs to the window.
struct WindowParts
{
    Menus* menus = nullptr;
    ToolBar* toolBar = nullptr;
    StatusBar* statusBar = nullptr;
    TransferBar* transferBar = nullptr;
    MessageBar* messageBar = nullptr;
    Pages* pages = nullptr;
    CurrentFile* currentFile = nullptr;
    StandingWarnings* warnings = nullptr;
    FileCommands* files = nullptr;
    ImportCommands* imports = nullptr;
    EditCommands* edits = nullptr;
    HistoryCommands* history = nullptr;
    FindCommands* finds = nullptr;
    PortCommands* ports = nullptr;
    ReadOptionItems* readOptions = nullptr;
    WriteOptionItems* writeOptions = nullptr;
    Offers* offers = nullptr;
    TransferCommands* transfers = nullptr;
    ChangeCommands* changes = nullptr;
    TransferShell* shell = nullptr;
    SideWindows* sides = nullptr;
    CompareCommands* compare = nullptr;
    BackupCommands* backups = nullptr;
    Recovery* recovery = nullptr;
    RecentFiles* recentFiles = nullptr;
};

/// Makes the parts and puts those that show into the window.
WindowParts MakeWindowParts(Document& document, RadioLink& link, Dialogs& dialogs,
                            const StartOptions& options, QMainWindow& window);

}  // namespace rqm5
