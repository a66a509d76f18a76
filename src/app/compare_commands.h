#pragma once

#include <QObject>

#include "app/pages.h"
#include "app/transfer_commands.h"
#include "document/document.h"
#include "memory/compare_dialog.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Tools > Compare: gets the images that the open one is compared with.
class CompareCommands : public QObject
{
    Q_OBJECT

  public:
    CompareCommands(Document& document, RadioLink& link, TransferCommands& transfers, Dialogs& dialogs,
                    Pages& pages, QWidget& window);

    void mnuToolsCompare_Click();

    /// Compares with another image: brings the window to the front.
    void CompareWith(dlgCompare::Source source);

  signals:
    void BackupWanted();

  private:
    void MakeWindow();
    void CompareWithFile();
    void CompareWithLastRead();
    void CompareWithReceiver();
    void GoTo(ItemId id);

    Document& document_;
    RadioLink& link_;
    TransferCommands& transfers_;
    Dialogs& dialogs_;
    Pages& pages_;
    QWidget& window_;
    dlgCompare* compare_ = nullptr;
};

}  // namespace rqm5
