#pragma once

#include <QMainWindow>

#include "app/menus.h"
#include "app/port_commands.h"
#include "app/start_options.h"
#include "document/document.h"
#include "link/radio_link.h"
#include "ui/dialogs.h"

namespace rqm5 {

class DiagnosticsPanel;
class HelpKey;
class Pages;
class TransferCommands;

/// The windows beside the main window: printing, diagnostics, help and the About box. The diagnostics panel
/// keeps the log of the line also while it is hidden.
class SideWindows : public QObject
{
    Q_OBJECT

  public:
    SideWindows(Document& document, RadioLink& link, TransferCommands& transfers, Dialogs& dialogs,
                const PortCommands& ports, const Pages& pages, const StartOptions& options,
                QMainWindow& window);

    /// Keeps the check mark of the View menu's item right: the panel has a close button of its own.
    void MarkDiagnostics(QAction& mnuViewDiagnostics);

    void mnuViewDiagnostics_Click(bool isWanted);
    void mnuFilePrint_Click();
    void mnuHelpContents_Click();
    void mnuHelpAbout_Click();

  private:
    Document& document_;
    RadioLink& link_;
    Dialogs& dialogs_;
    const PortCommands& ports_;
    const StartOptions& options_;
    QMainWindow& window_;
    HelpKey* help_;
    DiagnosticsPanel* diagnostics_;
};

}  // namespace rqm5
