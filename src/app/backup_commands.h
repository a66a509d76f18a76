#pragma once

#include <QObject>

#include "app/backups_dialog.h"
#include "app/compare_commands.h"
#include "app/file_commands.h"
#include "app/transfer_commands.h"

namespace rqm5 {

/// File > Backups: what is done with a backup that was chosen there.
class BackupCommands : public QObject
{
    Q_OBJECT

  public:
    BackupCommands(const Document& document, FileCommands& files, TransferCommands& transfers,
                   CompareCommands& compare, Dialogs& dialogs, QWidget& window);

    void mnuFileBackups_Click();

  private:
    bool Load(const BackupFile& backup, CloneImage& image);
    void Compare(const BackupFile& backup);
    void WriteBack(const BackupFile& backup);

    const Document& document_;
    FileCommands& files_;
    TransferCommands& transfers_;
    CompareCommands& compare_;
    Dialogs& dialogs_;
    QWidget& window_;
};

}  // namespace rqm5
