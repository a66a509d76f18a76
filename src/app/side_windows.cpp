#include "app/side_windows.h"

#include "app/diagnostics/diagnostics_panel.h"
#include "help/about_dialog.h"
#include "help/help_key.h"
#include "printing/print_job.h"

namespace rqm5 {

SideWindows::SideWindows(Document& document, RadioLink& link, TransferCommands& transfers, Dialogs& dialogs,
                         const PortCommands& ports, const StartOptions& options, QMainWindow& window)
    : QObject(&window),
      document_(document),
      link_(link),
      dialogs_(dialogs),
      ports_(ports),
      options_(options),
      window_(window),
      help_(new HelpKey(dialogs, window)),
      diagnostics_(new DiagnosticsPanel(document.Image(), link, transfers, dialogs, &window))
{
    window.addDockWidget(Qt::BottomDockWidgetArea, diagnostics_);
    diagnostics_->hide();
}

void SideWindows::ConnectDiagnostics(QAction& mnuViewDiagnostics)
{
    connect(&mnuViewDiagnostics, &QAction::triggered, diagnostics_, &QDockWidget::setVisible);
    // The panel has a close button of its own.
    connect(diagnostics_->toggleViewAction(), &QAction::toggled, &mnuViewDiagnostics, &QAction::setChecked);
}

void SideWindows::mnuFilePrint_Click()
{
    PrintImage(document_.Image(), document_.FileName(), dialogs_, &window_);
}

void SideWindows::mnuHelpContents_Click()
{
    help_->ShowHelp();
}

void SideWindows::mnuHelpAbout_Click()
{
    dlgAbout about(AboutFacts(options_.portFile, ports_.CommPort(), link_.Port().Device()), &window_);
    dialogs_.Run(about);
}

}  // namespace rqm5
