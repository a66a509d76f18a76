#pragma once

#include <QWidget>

#include "app/file_commands.h"
#include "image/clone_image.h"
#include "link/radio_link.h"
#include "ui/dialogs.h"

namespace rqm5 {

class TransferCommands;

/// What the windows beside the main window may work with.
struct SideContext
{
    QWidget& window;
    CloneImage& image;
    Dialogs& dialogs;
    const FileCommands& files;
    RadioLink& link;
    TransferCommands& transfers;
    const QString& portFile;  ///< path of "RQ-M5.ini"
    const int& CommPort;      ///< COM number in use
};

/// Makes what must be there before it is shown: the diagnostics panel, which keeps the log of the line
/// also while it is hidden, and the help key in dialogs. Call it once, when the menus are there.
void AddSideWindows(const SideContext& context);

// What the menu items of these names do, apart from the main window's own work.

void mnuFilePrint_Click(const SideContext& context);
void mnuHelpContents_Click(const SideContext& context);
void mnuHelpAbout_Click(const SideContext& context);
void mnuViewDiagnostics_Click(const SideContext& context);

}  // namespace rqm5
