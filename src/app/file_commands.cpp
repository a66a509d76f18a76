#include "app/file_commands.h"

#include <QFileInfo>

#include "files/clone_file.h"
#include "files/csv_file.h"
#include "image/value_tables.h"
#include "memory/start_image.h"
#include "ui/error_prompt.h"
#include "ui/plain_text.h"
#include "ui/row_list.h"

namespace rqm5 {

namespace {

/// Another start may come from another folder, and must not take a file of the same name for this one.
QString Absolute(const QString& path)
{
    return path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
}

/// Rows of a warning that are named; the rest are counted.
constexpr std::size_t kNamedRows = 10;

}  // namespace

FileCommands::FileCommands(Document& document, Dialogs& dialogs, QWidget& window)
    : QObject(&window), document_(document), dialogs_(dialogs), window_(window)
{
}

QString FileCommands::Caption() const
{
    const QString title = QString::fromUtf8(AppTitle.data(), static_cast<qsizetype>(AppTitle.size()));
    if (document_.FileName().isEmpty())
        return title;
    // A line break would cut the caption, and "[*]" is where a window shows that it was changed.
    QString file = VisibleText(QFileInfo(document_.FileName()).fileName());
    return file.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")) + QStringLiteral(" - ") + title;
}

bool FileCommands::MayLoseChanges()
{
    if (!document_.DataChanged())
        return true;
    Prompt question;
    question.title = tr("Save Changes");
    question.text = tr("Save changes to settings?");
    question.icon = QMessageBox::Question;
    question.buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    question.defaultButton = QMessageBox::Yes;
    const QMessageBox::StandardButton answer = Ask(question);
    // A file that cannot bring back every note keeps the program from going on: here they can still be
    // mended.
    if (answer == QMessageBox::Yes)
        return mnuFileSave_Click() && NotesThatDoNotSurvive(document_.Image()).empty();
    return answer == QMessageBox::No;
}

void FileCommands::mnuFileNew_Click()
{
    if (!MayLoseChanges())
        return;
    CloneImage image = document_.Image();
    NewImage(image);
    document_.Replace(std::move(image), QString());
    emit NewDone();
}

void FileCommands::mnuFileOpen_Click()
{
    if (!MayLoseChanges())
        return;
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::OpenClone, document_.FileName());
    if (!path.isEmpty())
        Load(path);
}

void FileCommands::OpenDropped(const QString& path)
{
    if (MayLoseChanges())
        Load(path);
}

bool FileCommands::Load(const QString& path)
{
    CloneImage image = document_.Image();
    if (!Report(LoadCloneFile(path, image)))
        return false;
    document_.Replace(std::move(image), Absolute(path));
    return true;
}

bool FileCommands::Recover(const QString& path, const QString& origin)
{
    CloneImage image = document_.Image();
    if (!Report(LoadCloneFile(path, image)))
        return false;
    document_.Replace(std::move(image), QFileInfo(origin).isFile() ? Absolute(origin) : QString(), false);
    return true;
}

bool FileCommands::mnuFileSave_Click()
{
    return document_.FileName().isEmpty() ? mnuFileSaveAs_Click() : SaveTo(document_.FileName());
}

bool FileCommands::mnuFileSaveAs_Click()
{
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::SaveClone, document_.FileName());
    return !path.isEmpty() && SaveTo(path);
}

bool FileCommands::SaveTo(const QString& path)
{
    const SaveOutcome outcome = SaveCloneFile(path, document_.Image());
    if (!Report(outcome.problem))
        return false;
    document_.MarkSaved(Absolute(path));
    WarnOfNotes(tr("The file is saved, but a clone file cannot hold notes with a comma or quotes. While "
                   "these notes stay as they are, the file cannot be opened again or shows them changed."),
                outcome.lostNotes);
    return true;
}

void FileCommands::mnuFileExport_Click()
{
    QString suggested = document_.FileName();
    if (!suggested.isEmpty())
        suggested = QFileInfo(suggested).path() + QLatin1Char('/') + QFileInfo(suggested).completeBaseName() +
                    QStringLiteral(".csv");
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::SaveCsv, suggested);
    if (path.isEmpty() || !Report(ExportCsv(path, document_.Image())))
        return;
    document_.MarkSaved(Absolute(path));
    WarnOfNotes(tr("The file is written. A spreadsheet may run these notes as formulas."),
                NotesThatLookLikeFormulas(document_.Image()));
}

void FileCommands::mnuFileImport_Click()
{
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::OpenCsv, QString());
    if (path.isEmpty())
        return;
    CloneImage image = document_.Image();
    int taken = 0;
    if (!Report(ImportCsv(path, image, taken)))
        return;
    if (taken == 0)
        emit NothingImported();
    else
        document_.Import(tr("Import (%1)").arg(VisibleText(QFileInfo(path).fileName())), image,
                         Absolute(path));
}

QMessageBox::StandardButton FileCommands::Ask(const Prompt& prompt)
{
    emit Asking();
    return dialogs_.Ask(&window_, prompt);
}

bool FileCommands::Report(const std::optional<Problem>& problem)
{
    if (problem)
        Ask(ErrorPrompt(*problem));
    return !problem;
}

void FileCommands::WarnOfNotes(const QString& text, const std::vector<std::string>& rows)
{
    if (rows.empty())
        return;
    Prompt warning;
    warning.title = tr("Notes");
    warning.text = text;
    warning.details = RowList(rows, kNamedRows);
    warning.icon = QMessageBox::Warning;
    Ask(warning);
}

}  // namespace rqm5
