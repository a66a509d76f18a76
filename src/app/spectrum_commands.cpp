#include "app/spectrum_commands.h"

#include "spectrum/spectrum_dock.h"
#include "spectrum/spectrum_view.h"

namespace rqm5 {

SpectrumCommands::SpectrumCommands(const Document& document, Dialogs& dialogs, Pages& pages,
                                   const TransferCommands& transfers, QAction& mnuViewSpectrum,
                                   QMainWindow& window)
    : QObject(&window),
      pages_(pages),
      transfers_(transfers),
      dock_(new SpectrumDock(document, dialogs, &window))
{
    window.addDockWidget(Qt::BottomDockWidgetArea, dock_);
    dock_->hide();
    connect(&mnuViewSpectrum, &QAction::triggered, dock_, &QDockWidget::setVisible);
    // The dock has a close button of its own.
    connect(dock_->toggleViewAction(), &QAction::toggled, &mnuViewSpectrum, &QAction::setChecked);
    connect(dock_, &SpectrumDock::RowChosen, this, &SpectrumCommands::GoTo);
    connect(&pages.Memory(), &MemoryPage::SelectionChanged, this, &SpectrumCommands::ShowSelection);
    connect(dock_->toggleViewAction(), &QAction::toggled, this, &SpectrumCommands::ShowSelection);
}

void SpectrumCommands::GoTo(int row)
{
    // The table does not change its group while one is read or written. A size that is typed and refused
    // keeps its box.
    if (transfers_.IsRunning() || !pages_.Banks().CommitPending())
        return;
    pages_.BringToFront(Tab::Memory);
    pages_.Memory().GoToRow(row);
    // Whoever goes from channel to channel there goes on.
    dock_->View().setFocus();
}

void SpectrumCommands::ShowSelection()
{
    if (dock_->isVisible())
        dock_->View().SelectRows(pages_.Memory().SelectedRows());
}

}  // namespace rqm5
