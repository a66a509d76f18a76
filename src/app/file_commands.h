#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

#include "app/current_file.h"
#include "document/document.h"
#include "files/file_store.h"
#include "files/note_repair.h"
#include "files/recovery_file.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// The File menu, and the question that keeps edits from getting lost.
class FileCommands : public QObject
{
    Q_OBJECT

  public:
    FileCommands(Document& document, CurrentFile& currentFile, Dialogs& dialogs, QWidget& window);

    /// Asks about unsaved changes, and saves when that is the answer.
    /// \return false when what was going to happen shall not: cancelled, or the save was cancelled or failed
    bool MayLoseChanges();

    /// Loads a clone file and makes it the current one. \return false after a message; nothing changed then
    bool Load(const QString& path);

    /// Loads the current file, which another program has changed.
    void LoadAgain();

    /// Loads what a crash left behind, as unsaved changes. The file that the work began with is the current
    /// one again while it is still there.
    bool Recover(const RecoveryFile& file);

    void mnuFileNew_Click();
    void mnuFileOpen_Click();

    /// Opens a clone file that was dropped on the window or chosen from the latest ones.
    void OpenAnother(const QString& path);
    bool mnuFileSave_Click();    ///< \return true when the file was written
    bool mnuFileSaveAs_Click();  ///< \return true when the file was written
    void mnuFileExport_Click();
    void mnuFileRepair_Click();

    /// The window's caption: the current file's name without its folder, and the program's title.
    QString Caption() const;

  signals:
    void NewDone();
    void Used(const QString& path);     ///< this clone file has been opened or saved
    void Refused(const QString& path);  ///< this file could not be opened
    void Asking();                      ///< a message or question is about to be shown

    /// What there is to say of a save that went well.
    void Noted(const QString& text);

    /// The current file cannot bring back notes, or, with an empty text, it can again.
    void NotesLost(const rqm5::Message& text);

  private:
    enum class Answer { Save, SaveAs, Cancel };

    bool Report(const std::optional<Problem>& problem);
    void WarnOfNotes(const QString& text, const std::vector<Message>& rows);
    Answer AskToReplace(const Prompt& question);
    Answer MayReplaceCurrent();
    bool SaveTo(const QString& path);
    QString WriteRepaired(const QString& path, const NoteRepair& repair);
    void TellOfSave(const QString& path, const SaveOutcome& outcome, const QString& kept);

    QMessageBox::StandardButton Ask(const Prompt& prompt);

    Document& document_;
    CurrentFile& currentFile_;
    Dialogs& dialogs_;
    QWidget& window_;
};

}  // namespace rqm5
