#include "app/file_commands.h"

#include <QFileInfo>

#include "files/clone_file.h"
#include "files/csv_file.h"
#include "memory/start_image.h"
#include "ui/error_prompt.h"
#include "ui/plain_text.h"
#include "ui/row_list.h"

namespace rqm5 {

namespace {

/// Rows of a warning that are named; the rest are counted.
constexpr std::size_t kNamedRows = 10;

}  // namespace

FileCommands::FileCommands(CloneImage& image, Dialogs& dialogs, QWidget& window)
    : QObject(&window), image_(image), dialogs_(dialogs), window_(window)
{
}

QString FileCommands::Caption() const
{
    const QString title = QString::fromUtf8(AppTitle.data(), static_cast<qsizetype>(AppTitle.size()));
    if (FileName_.isEmpty())
        return title;
    // A line break would cut the caption, and "[*]" is where a window shows that it was changed.
    QString file = VisibleText(QFileInfo(FileName_).fileName());
    return file.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")) + QStringLiteral(" - ") + title;
}

bool FileCommands::MayLoseChanges()
{
    if (!image_.DataChanged)
        return true;
    Prompt question;
    question.title = tr("Save Changes");
    question.text = tr("Save changes to settings?");
    question.icon = QMessageBox::Question;
    question.buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    question.defaultButton = QMessageBox::Yes;
    const QMessageBox::StandardButton answer = dialogs_.Ask(&window_, question);
    // A file that may not open again is no reason to let the notes go: here they can still be mended.
    if (answer == QMessageBox::Yes)
        return mnuFileSave_Click() && NotesThatDoNotSurvive(image_).empty();
    return answer == QMessageBox::No;
}

void FileCommands::mnuFileNew_Click()
{
    if (!MayLoseChanges())
        return;
    NewImage(image_);
    FileName_.clear();
    emit NewDone();
    emit FileStateChanged();
}

void FileCommands::mnuFileOpen_Click()
{
    if (!MayLoseChanges())
        return;
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::OpenClone, FileName_);
    if (!path.isEmpty())
        Load(path);
}

bool FileCommands::Load(const QString& path)
{
    if (!Report(LoadCloneFile(path, image_)))
        return false;
    emit Loaded();
    TakeAsCurrent(path);
    return true;
}

bool FileCommands::Recover(const QString& path, const QString& origin)
{
    if (!Report(LoadCloneFile(path, image_)))
        return false;
    image_.DataChanged = true;
    emit Loaded();
    TakeAsCurrent(QFileInfo(origin).isFile() ? origin : QString());
    return true;
}

bool FileCommands::mnuFileSave_Click()
{
    return FileName_.isEmpty() ? mnuFileSaveAs_Click() : SaveTo(FileName_);
}

bool FileCommands::mnuFileSaveAs_Click()
{
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::SaveClone, FileName_);
    return !path.isEmpty() && SaveTo(path);
}

bool FileCommands::SaveTo(const QString& path)
{
    const SaveOutcome outcome = SaveCloneFile(path, image_);
    if (!Report(outcome.problem))
        return false;
    TakeAsCurrent(path);
    WarnOfNotes(tr("The file is saved, but a clone file cannot hold notes with a comma or quotes. While "
                   "these notes stay as they are, the file cannot be opened again or shows them changed."),
                outcome.lostNotes);
    return true;
}

void FileCommands::mnuFileExport_Click()
{
    QString suggested = FileName_;
    if (!suggested.isEmpty())
        suggested = QFileInfo(suggested).path() + QLatin1Char('/') + QFileInfo(suggested).completeBaseName() +
                    QStringLiteral(".csv");
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::SaveCsv, suggested);
    if (path.isEmpty() || !Report(ExportCsv(path, image_)))
        return;
    TakeAsCurrent(path);
    WarnOfNotes(tr("The file is written. A spreadsheet may run these notes as formulas."),
                NotesThatLookLikeFormulas(image_));
}

void FileCommands::mnuFileImport_Click()
{
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::OpenCsv, QString());
    if (path.isEmpty())
        return;
    int taken = 0;
    if (!Report(ImportCsv(path, image_, taken)))
        return;
    if (taken == 0) {
        emit NothingImported();
        return;
    }
    emit Imported();
    TakeAsCurrent(path);
}

void FileCommands::TakeAsCurrent(const QString& path)
{
    // Another start may come from another folder, and must not take a file of the same name for this one.
    FileName_ = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
    emit FileStateChanged();
}

bool FileCommands::Report(const std::optional<Problem>& problem)
{
    if (problem)
        dialogs_.Ask(&window_, ErrorPrompt(*problem));
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
    dialogs_.Ask(&window_, warning);
}

}  // namespace rqm5
