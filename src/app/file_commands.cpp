#include "app/file_commands.h"

#include <QFileInfo>

#include "app/save_prompts.h"
#include "files/clone_file.h"
#include "files/csv_file.h"
#include "files/file_kind.h"
#include "files/note_repair.h"
#include "image/value_tables.h"
#include "memory/start_image.h"
#include "platform/file_access.h"
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

FileCommands::FileCommands(Document& document, CurrentFile& currentFile, Dialogs& dialogs, QWidget& window)
    : QObject(&window), document_(document), currentFile_(currentFile), dialogs_(dialogs), window_(window)
{
    connect(&document, &Document::Replaced, this, [this] { emit NotesLost({}); });
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

void FileCommands::OpenAnother(const QString& path)
{
    if (MayLoseChanges())
        Load(path);
}

bool FileCommands::Load(const QString& path)
{
    CloneImage image = document_.Image();
    FileMark mark;
    if (!Report(LoadCloneFile(path, image, &mark))) {
        emit Refused(Absolute(path));
        return false;
    }
    currentFile_.Know(Absolute(path), mark);
    document_.Replace(std::move(image), Absolute(path));
    emit Used(Absolute(path));
    return true;
}

void FileCommands::LoadAgain()
{
    // The path goes out of the document while the file is loaded.
    const QString path = document_.FileName();
    if (MayLoseChanges())
        Load(path);
}

bool FileCommands::Recover(const RecoveryFile& file)
{
    CloneImage image = document_.Image();
    if (!Report(LoadCloneFile(file.Path(), image)))
        return false;
    const RecoveryOrigin origin = file.Origin();
    const QString path = QFileInfo(origin.path).isFile() ? Absolute(origin.path) : QString();
    if (!path.isEmpty())
        currentFile_.Know(path, origin.mark);
    document_.Replace(std::move(image), path, false);
    return true;
}

FileCommands::Answer FileCommands::AskToReplace(const Prompt& question)
{
    const QMessageBox::StandardButton answer = Ask(question);
    return answer == QMessageBox::Yes  ? Answer::Save
           : answer == QMessageBox::No ? Answer::SaveAs
                                       : Answer::Cancel;
}

FileCommands::Answer FileCommands::MayReplaceCurrent()
{
    const CurrentFile::State state = currentFile_.Look();
    return state == CurrentFile::State::AsKnown
               ? Answer::Save
               : AskToReplace(AlteredFilePrompt(document_.FileName(), state));
}

bool FileCommands::mnuFileSave_Click()
{
    const Answer answer = document_.FileName().isEmpty() ? Answer::SaveAs : MayReplaceCurrent();
    if (answer == Answer::SaveAs)
        return mnuFileSaveAs_Click();
    return answer == Answer::Save && SaveTo(document_.FileName());
}

bool FileCommands::mnuFileSaveAs_Click()
{
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::SaveClone, document_.FileName());
    return !path.isEmpty() && SaveTo(path);
}

bool FileCommands::SaveTo(const QString& chosen)
{
    const QString path = Absolute(chosen);
    if (const int names = NameCount(path); names > 1) {
        const Answer answer = AskToReplace(HardLinkPrompt(path, names));
        if (answer != Answer::Save)
            return answer == Answer::SaveAs && mnuFileSaveAs_Click();
    }
    const FileKind kind = KindOf(path);
    QString kept;
    if (kind != FileKind::None && kind != FileKind::Empty && kind != FileKind::Clone && !SaveObstacle(path) &&
        !Report(KeepOldFile(path, kept)))
        return false;
    const SaveOutcome outcome = SaveCloneFile(path, document_.Image());
    if (!outcome.mark.isEmpty())
        currentFile_.Know(path, outcome.mark);
    if (!Report(outcome.problem))
        return false;
    document_.MarkSaved(path);
    emit Used(path);
    TellOfSave(path, outcome, kept);
    return true;
}

void FileCommands::TellOfSave(const QString& path, const SaveOutcome& outcome, const QString& kept)
{
    emit NotesLost(LostNotesWarning(path, outcome.lostNotes));
    if (const QString note = SaveNote(path, outcome, kept); !note.isEmpty())
        emit Noted(note);
    WarnOfNotes(tr("The file is saved, but a clone file cannot hold notes with a comma or quotes. While "
                   "these notes stay as they are, the file cannot be opened again or shows them changed."),
                outcome.lostNotes);
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
    currentFile_.Know(Absolute(path), MarkOf(FormatCsv(document_.Image())));
    document_.MarkSaved(Absolute(path));
    WarnOfNotes(tr("The file is written. A spreadsheet may run these notes as formulas."),
                NotesThatLookLikeFormulas(document_.Image()));
}

void FileCommands::mnuFileRepair_Click()
{
    if (!MayLoseChanges())
        return;
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::OpenClone, document_.FileName());
    std::string bytes;
    if (path.isEmpty() || !Report(ReadWholeFile(path, bytes)))
        return;
    const auto result = RepairNotes(bytes);
    if (const auto* error = std::get_if<ParseError>(&result)) {
        Report(Problem{kDataError,
                       Message(MESSAGE("%1: %2"), {VisibleText(path).toStdString(), error->reason})});
        return;
    }
    const auto& repair = std::get<NoteRepair>(result);
    if (repair.notes.empty()) {
        if (Load(path))
            emit Noted(tr("There was nothing to repair; the file is open."));
        return;
    }
    const QString written = WriteRepaired(path, repair);
    if (!written.isEmpty() && Load(written))
        emit Noted(tr("Repaired notes: %1").arg(repair.notes.size()));
}

QString FileCommands::WriteRepaired(const QString& path, const NoteRepair& repair)
{
    const QMessageBox::StandardButton answer = Ask(RepairPrompt(path, repair));
    QString target;
    QString kept;
    if (answer == QMessageBox::No && Report(KeepOldFile(path, kept)))
        target = path;
    const QFileInfo info(path);
    if (answer == QMessageBox::Yes)
        target = dialogs_.ChooseFile(&window_, FileChoice::SaveClone,
                                     info.path() + QLatin1Char('/') + info.completeBaseName() +
                                         tr(" repaired") + QStringLiteral(".RQ5"));
    if (target.isEmpty() || !Report(WriteWholeFile(target, repair.text)))
        return {};
    return target;
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

void FileCommands::WarnOfNotes(const QString& text, const std::vector<Message>& rows)
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
