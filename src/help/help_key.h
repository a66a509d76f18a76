#pragma once

#include <QObject>
#include <QTabWidget>
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
    /// \param pages  the one in front decides where nothing that has the focus does
    HelpKey(Dialogs& dialogs, const QTabWidget& pages, QWidget& mainWindow);

    void ShowHelp();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QString TopicOfFocus(const QWidget* modal) const;
    frmHelp& HelpFor(QWidget* modal);

    Dialogs& dialogs_;
    const QTabWidget& pages_;
    std::unique_ptr<frmHelp> help_;  ///< no child of the main window, which it would always cover then
};

}  // namespace rqm5
