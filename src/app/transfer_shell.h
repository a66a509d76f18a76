#pragma once

#include <QMainWindow>
#include <QPointer>

#include "app/history_commands.h"
#include "app/menus.h"
#include "app/pages.h"
#include "app/status_bar.h"
#include "app/transfer_bar.h"
#include "app/transfer_commands.h"

namespace rqm5 {

/// What becomes of the window while a transfer runs: the bar with Cancel shows, all that could disturb it is
/// off, and afterwards everything is as it was. Starts the transfers that menus and pages ask for.
class TransferShell : public QObject
{
    Q_OBJECT

  public:
    TransferShell(TransferCommands& transfers, Menus& menus, Pages& pages, HistoryCommands& history,
                  TransferBar& bar, StatusBar& statusBar, QMainWindow& window);

    void Start(Transfer transfer);

    /// The same with a page in front.
    void StartOn(Tab tab, Transfer transfer);

  private:
    void ConnectPages();
    void ConnectTransfers();
    void SetRunning(bool isRunning);

    TransferCommands& transfers_;
    Menus& menus_;
    Pages& pages_;
    HistoryCommands& history_;
    TransferBar& bar_;
    StatusBar& statusBar_;
    QMainWindow& window_;
    QPointer<QWidget> focusBefore_;
};

}  // namespace rqm5
