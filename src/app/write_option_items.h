#pragma once

#include <QObject>
#include <QWidget>

#include "app/menus.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// The items of the Write menu that say what goes with every write: a backup, a verification, and where
/// backups are kept.
class WriteOptionItems : public QObject
{
    Q_OBJECT

  public:
    WriteOptionItems(Menus& menus, Dialogs& dialogs, QWidget& window);

    /// What mnuWrBackup and mnuWrVerify do.
    void Keep();

    /// Both from now on.
    void TurnOn();

    void mnuWrBackupFolder_Click();

  private:
    Menus& menus_;
    Dialogs& dialogs_;
    QWidget& window_;
};

}  // namespace rqm5
