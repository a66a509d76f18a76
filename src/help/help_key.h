#pragma once

#include <QObject>
#include <QWidget>
#include <memory>

#include "help/help_browser.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Opens the help page for what has the focus: from the main window's menu, and with F1 where no menu
/// takes the key, in dialogs and message boxes.
class HelpKey : public QObject
{
    Q_OBJECT

  public:
    /// Listens to the whole program for as long as the main window lives.
    HelpKey(Dialogs& dialogs, QWidget& mainWindow);

    void ShowHelp();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    frmHelp& HelpFor(QWidget* modal);

    Dialogs& dialogs_;
    std::unique_ptr<frmHelp> help_;  ///< no child of the main window, which it would always cover then
};

}  // namespace rqm5
