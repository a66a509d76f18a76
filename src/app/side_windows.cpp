#include "app/side_windows.h"

#include "app/diagnostics/diagnostics_panel.h"
#include "app/pages.h"
#include "help/about_dialog.h"
#include "help/help_key.h"
#include "printing/print_job.h"

namespace rqm5 {

SideWindows::SideWindows(Document& document, RadioLink& link, TransferCommands& transfers, Dialogs& dialogs,
                         const PortCommands& ports, const Pages& pages, const StartOptions& options,
                         QMainWindow& window)
    : QObject(&window),
      document_(document),
      link_(link),
      dialogs_(dialogs),
      ports_(ports),
      options_(options),
      window_(window),
      help_(new HelpKey(dialogs, pages.Tabs(), window)),
      diagnostics_(new DiagnosticsPanel(document.Image(), link, transfers, dialogs, &window))
{
    window.addDockWidget(Qt::BottomDockWidgetArea, diagnostics_);
    diagnostics_->hide();
}

void SideWindows::MarkDiagnostics(QAction& mnuViewDiagnostics)
{
    connect(diagnostics_->toggleViewAction(), &QAction::toggled, &mnuViewDiagnostics, &QAction::setChecked);
}

void SideWindows::mnuViewDiagnostics_Click(bool isWanted)
{
    diagnostics_->setVisible(isWanted);
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
