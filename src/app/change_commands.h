#pragma once

#include <QObject>
#include <QWidget>
#include <optional>

#include "app/transfer_commands.h"
#include "document/document.h"
#include "link/change_plan.h"
#include "link/radio_link.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Write > Changes: reads what is not known of the receiver, shows what would be written, and writes it.
class ChangeCommands : public QObject
{
    Q_OBJECT

  public:
    ChangeCommands(Document& document, RadioLink& link, TransferCommands& transfers, Dialogs& dialogs,
                   QWidget& window);

    void mnuWrChanges_Click();

  private:
    bool LearnReceiver();
    bool MayRead(std::size_t blocks);
    bool DecideConflicts(ChangePlan& plan);
    TransferResult Run(ChangePlan& plan, bool keepsBackup, bool verifies);
    TransferResult Check(ChangePlan& plan);
    TransferResult KeepBackup(const ChangePlan& plan);
    TransferResult Write(const ChangePlan& plan, bool verifies);
    void TakeOver(const ChangePlan& plan);

    Document& document_;
    RadioLink& link_;
    TransferCommands& transfers_;
    Dialogs& dialogs_;
    QWidget& window_;
};

}  // namespace rqm5
