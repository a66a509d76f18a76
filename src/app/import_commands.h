#pragma once

#include <QObject>
#include <QWidget>
#include <string>

#include "app/current_file.h"
#include "app/status_bar.h"
#include "document/document.h"
#include "files/csv_file.h"
#include "ui/dialogs.h"
#include "ui/message_bar.h"

namespace rqm5 {

/// File > Import and Export List: files of this program, and lists of all others.
class ImportCommands : public QObject
{
    Q_OBJECT

  public:
    ImportCommands(Document& document, CurrentFile& currentFile, Dialogs& dialogs, QWidget& window);

    void mnuFileImport_Click();
    void mnuFileExportList_Click();

    /// Lists what an import read otherwise, and reads its file again when that is wanted.
    void ShowDetails();

  signals:
    void NothingImported();  ///< the file held no record of this receiver and is no list; nothing has changed
    void Asking();           ///< a message or question is about to be shown
    void Noted(const QString& text);

    /// An import read fields otherwise than they stand there; ShowDetails lists them.
    void ReadOtherwise(const rqm5::Message& text);

  private:
    /// A file that was imported.
    struct Imported
    {
        QString path;
        std::string bytes;
        CsvFindings findings;
        int step = -1;  ///< where the history was then
    };

    void ImportOwn(const QString& path, std::string bytes, CsvNumbers numbers);
    void ImportList(const QString& path, std::string bytes);
    bool Report(const std::optional<Problem>& problem);

    Document& document_;
    CurrentFile& currentFile_;
    Dialogs& dialogs_;
    QWidget& window_;
    Imported last_;
};

/// Shows what there is to say of an import: in the status bar with a link, in the message bar with a button
/// while the status bar is hidden.
void ConnectImportNotes(ImportCommands& commands, StatusBar& statusBar, MessageBar& messageBar);

}  // namespace rqm5
