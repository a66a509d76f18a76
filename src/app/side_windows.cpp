#include "app/side_windows.h"

#include <QAction>
#include <QMainWindow>

#include "app/diagnostics/diagnostics_panel.h"
#include "app/transfer_commands.h"
#include "help/about_dialog.h"
#include "help/help_key.h"
#include "printing/print_job.h"

namespace rqm5 {

void mnuFilePrint_Click(const SideContext& context)
{
    PrintImage(context.image, context.files.FileName(), context.dialogs, &context.window);
}

void AddSideWindows(const SideContext& context)
{
    new HelpKey(context.dialogs, context.window);
    auto& window = static_cast<QMainWindow&>(context.window);
    auto* panel =
        new DiagnosticsPanel(context.image, context.link, context.transfers, context.dialogs, &window);
    window.addDockWidget(Qt::BottomDockWidgetArea, panel);
    panel->hide();
    auto* item = window.findChild<QAction*>(QStringLiteral("mnuViewDiagnostics"));
    item->setCheckable(true);
    // The panel has a close button of its own.
    QObject::connect(panel->toggleViewAction(), &QAction::toggled, item, &QAction::setChecked);
}

void mnuHelpContents_Click(const SideContext& context)
{
    context.window.findChild<HelpKey*>()->ShowHelp();
}

void mnuViewDiagnostics_Click(const SideContext& context)
{
    auto* panel = context.window.findChild<DiagnosticsPanel*>();
    panel->setVisible(context.window.findChild<QAction*>(QStringLiteral("mnuViewDiagnostics"))->isChecked());
}

void mnuHelpAbout_Click(const SideContext& context)
{
    dlgAbout about(AboutFacts(context.portFile, context.CommPort, context.link.Port().Device()),
                   &context.window);
    context.dialogs.Run(about);
}

}  // namespace rqm5
