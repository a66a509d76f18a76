#include "app/write_option_items.h"

#include "app/write_options.h"

namespace rqm5 {

WriteOptionItems::WriteOptionItems(Menus& menus, Dialogs& dialogs, QWidget& window)
    : QObject(&window), menus_(menus), dialogs_(dialogs), window_(window)
{
    const WriteOptions options = LoadWriteOptions();
    menus_.Item("mnuWrBackup").setChecked(options.keepsBackup);
    menus_.Item("mnuWrVerify").setChecked(options.verifies);
}

void WriteOptionItems::Keep()
{
    SaveWriteOptions({menus_.Item("mnuWrBackup").isChecked(), menus_.Item("mnuWrVerify").isChecked(),
                      LoadWriteOptions().backupFolder});
}

void WriteOptionItems::TurnOn()
{
    menus_.Item("mnuWrBackup").setChecked(true);
    menus_.Item("mnuWrVerify").setChecked(true);
    Keep();
}

void WriteOptionItems::mnuWrBackupFolder_Click()
{
    WriteOptions options = LoadWriteOptions();
    const QString folder = dialogs_.ChooseFolder(&window_, tr("Backup Folder"), options.backupFolder);
    if (folder.isEmpty())
        return;
    options.backupFolder = folder;
    SaveWriteOptions(options);
}

}  // namespace rqm5
