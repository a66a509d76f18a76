#pragma once

#include <QtGlobal>
#include <array>
#include <string_view>

namespace rqm5 {

enum class During { Stays, Off };  ///< what becomes of an item while a transfer runs

struct MenuTitle
{
    const char* name;
    const char* text;
};

struct MenuItem
{
    std::string_view menu;
    std::string_view name;  ///< empty for a separator
    const char* text;
    const char* shortcut;  ///< several are separated by "; "
    const char* hint;
    During during;
};

#define TEXT(text) QT_TRANSLATE_NOOP("rqm5::frmMain", text)

inline constexpr MenuTitle kMenuTitles[] = {
    {"mnuFile", TEXT("&File")},    {"mnuEdit", TEXT("&Edit")},      {"mnuView", TEXT("&View")},
    {"mnuRead", TEXT("Read(&R)")}, {"mnuWrite", TEXT("Write(&W)")}, {"mnuTools", TEXT("&Tools")},
    {"mnuHelp", TEXT("&Help")},
};

inline constexpr MenuItem kMenuItems[] = {
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
    {"mnuFile", "mnuFileRepair", TEXT("&Repair..."), "",
     TEXT("Open a clone file that is refused because of its notes"), During::Off},
    {"mnuFile", "", "", "", "", During::Stays},
    {"mnuFile", "mnuFilePrint", TEXT("&Print..."), "Ctrl+P", TEXT("Print settings, VFO bands and channels"),
     During::Off},
    {"mnuFile", "", "", "", "", During::Stays},
    {"mnuFile", "mnuFileExit", TEXT("E&xit"), "Ctrl+Q", TEXT("Close the program"), During::Stays},

    {"mnuEdit", "mnuHistoryUndo", TEXT("&Undo"), "Ctrl+Z", TEXT("Take back the last change"), During::Off},
    {"mnuEdit", "mnuHistoryRedo", TEXT("&Redo"), "Ctrl+Shift+Z; Ctrl+Y",
     TEXT("Make the change again that was taken back"), During::Off},
    {"mnuEdit", "", "", "", "", During::Stays},
    {"mnuEdit", "mnuEditUndo", TEXT("&Modify..."), "",
     TEXT("Edit the selected channels or VFO band; so does Enter"), During::Off},
    {"mnuEdit", "", "", "", "", During::Stays},
    {"mnuEdit", "mnuEditFind", TEXT("&Find..."), "Ctrl+F",
     TEXT("Find channels by frequency, note, mode or tone"), During::Off},
    {"mnuEdit", "mnuEditFindNext", TEXT("Find &Next"), "F3", TEXT("Go to the next channel found"),
     During::Off},
    {"mnuEdit", "mnuEditFindPrevious", TEXT("Find Pre&vious"), "Shift+F3",
     TEXT("Go to the previous channel found"), During::Off},

    {"mnuView", "mnuViewToolbar", TEXT("&Toolbar"), "", TEXT("Show or hide the toolbar"), During::Stays},
    {"mnuView", "mnuStatusBar", TEXT("&Status Bar"), "", TEXT("Show or hide the status bar"), During::Stays},
    {"mnuView", "mnuViewHistory", TEXT("&History"), "",
     TEXT("Show every change that can be taken back; a click goes there"), During::Stays},
    {"mnuView", "mnuViewSpectrum", TEXT("S&pectrum"), "",
     TEXT("Show every channel by its frequency; a click selects its row"), During::Stays},
    {"mnuView", "mnuViewDiagnostics", TEXT("&Diagnostics"), "",
     TEXT("Send single read commands and see the replies"), During::Stays},

    {"mnuRead", "mnuReAll", TEXT("ALL(&A)"), "Ctrl+R", TEXT("Read everything from the receiver"),
     During::Off},
    {"mnuRead", "mnuReMemory", TEXT("Memory(&M)"), "",
     TEXT("Read the channels of the group shown on the Memory page"), During::Off},
    {"mnuRead", "mnuReSettings", TEXT("Settings(&S)"), "", TEXT("Read the settings and the VFO bands"),
     During::Off},
    {"mnuRead", "", "", "", "", During::Stays},
    {"mnuRead", "mnuReVerify", TEXT("&Verify after reading"), "",
     TEXT("Read everything twice, and list what came otherwise"), During::Off},

    {"mnuWrite", "mnuWrAll", TEXT("ALL(&A)"), "Ctrl+Shift+W", TEXT("Write everything to the receiver"),
     During::Off},
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

    {"mnuTools", "mnuToolsDuplicates", TEXT("&Duplicates..."), "",
     TEXT("List every frequency that is stored more than once"), During::Off},
    {"mnuTools", "mnuToolsOptions", TEXT("COM Port Setup(&C)"), "",
     TEXT("Choose the serial port of the receiver's cable"), During::Off},

    {"mnuHelp", "mnuHelpContents", TEXT("&Contents"), "F1", TEXT("Show the manual"), During::Stays},
    {"mnuHelp", "mnuHelpAbout", TEXT("&About..."), "", TEXT("About this program"), During::Off},
};

#undef TEXT

/// The name of a menu item. A name that no item has does not compile.
class ItemName
{
  public:
    consteval ItemName(const char* name)
    {
        const std::string_view wanted = name;
        while (kMenuItems[index_].name != wanted)
            ++index_;
    }

    std::size_t Index() const { return index_; }

  private:
    std::size_t index_ = 0;
};

}  // namespace rqm5
