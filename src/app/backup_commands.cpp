#include "app/backup_commands.h"

#include <QFileInfo>

#include "app/write_options.h"
#include "files/file_store.h"
#include "language/language.h"
#include "language/translated.h"
#include "ui/error_prompt.h"
#include "ui/plain_text.h"

namespace rqm5 {

BackupCommands::BackupCommands(const Document& document, FileCommands& files, TransferCommands& transfers,
                               CompareCommands& compare, Dialogs& dialogs, QWidget& window)
    : QObject(&window),
      document_(document),
      files_(files),
      transfers_(transfers),
      compare_(compare),
      dialogs_(dialogs),
      window_(window)
{
    connect(&compare, &CompareCommands::BackupWanted, this, &BackupCommands::mnuFileBackups_Click);
}

void BackupCommands::mnuFileBackups_Click()
{
    dlgBackups backups(document_.Image(), LoadWriteOptions().backupFolder, dialogs_, &window_);
    dialogs_.Run(backups);
    switch (backups.ChosenAction()) {
        case dlgBackups::Action::Open:
            files_.OpenAnother(backups.Chosen().path);
            break;
        case dlgBackups::Action::Compare:
            Compare(backups.Chosen());
            break;
        case dlgBackups::Action::WriteBack:
            WriteBack(backups.Chosen());
            break;
        case dlgBackups::Action::None:
            break;
    }
}

bool BackupCommands::Load(const BackupFile& backup, CloneImage& image)
{
    image = document_.Image();
    const auto problem = LoadCloneFile(backup.path, image);
    if (problem)
        dialogs_.Ask(&window_, ErrorPrompt(*problem));
    return !problem;
}

void BackupCommands::Compare(const BackupFile& backup)
{
    CloneImage image;
    if (!Load(backup, image))
        return;
    const TransferScope scope = ScopeHeld(backup, image);
    const auto shortTime = [time = backup.time] {
        return Message(Language::OfProgram().ShortTime(time).toStdString());
    };
    compare_.CompareWith({{MESSAGE("the backup of %1"), {shortTime()}},
                          [shortTime, scope] {
                              return Message(MESSAGE("Other side: backup of %1, which holds: %2"),
                                             {shortTime(), ScopeText(scope)});
                          },
                          image,
                          PartsHeld(scope, image)});
}

void BackupCommands::WriteBack(const BackupFile& backup)
{
    CloneImage image;
    if (!Load(backup, image))
        return;
    const TransferScope scope = ScopeHeld(backup, image);
    const bool isMeant =
        dialogs_.Ask(&window_,
                     {.title = tr("Write"),
                      .text = tr("Write this backup to the receiver?"),
                      .details = tr("%1\nIt replaces in the receiver: %2. The open image stays as it is.")
                                     .arg(VisibleText(QFileInfo(backup.path).fileName()),
                                          Translated(ScopeText(scope))),
                      .icon = QMessageBox::Question,
                      .buttons = QMessageBox::Yes | QMessageBox::No,
                      .defaultButton = QMessageBox::No}) == QMessageBox::Yes;
    if (isMeant)
        transfers_.WriteBack(image, scope);
}

}  // namespace rqm5
