#include "app/import_commands.h"

#include <QFileInfo>

#include "app/import_details.h"
#include "app/save_prompts.h"
#include "files/clone_file.h"
#include "files/file_store.h"
#include "files/list_file.h"
#include "files/list_form.h"
#include "language/translated.h"
#include "memory/import_dialog.h"
#include "memory/list_export_dialog.h"
#include "ui/error_prompt.h"
#include "ui/plain_text.h"

namespace rqm5 {
namespace {

const QString kKey = QStringLiteral("import");

QString NameOf(const QString& path)
{
    return VisibleText(QFileInfo(path).fileName());
}

}  // namespace

ImportCommands::ImportCommands(Document& document, CurrentFile& currentFile, Dialogs& dialogs,
                               QWidget& window)
    : QObject(&window), document_(document), currentFile_(currentFile), dialogs_(dialogs), window_(window)
{
}

void ImportCommands::mnuFileImport_Click()
{
    const QString path = dialogs_.ChooseFile(&window_, FileChoice::OpenCsv, QString());
    std::string bytes;
    if (path.isEmpty() || !Report(ReadWholeFile(path, bytes)))
        return;
    if (IsOwnCsv(bytes))
        ImportOwn(path, std::move(bytes), CsvNumbers::AsTheyStand);
    else if (MayBeList(bytes))
        ImportList(path, std::move(bytes));
    else
        emit NothingImported();
}

void ImportCommands::ImportOwn(const QString& path, std::string bytes, CsvNumbers numbers)
{
    CloneImage image = document_.Image();
    CsvTaken taken = ParseCsv(bytes, image, numbers);
    if (taken.rows == 0) {
        emit NothingImported();
        return;
    }
    const QString absolute = QFileInfo(path).absoluteFilePath();
    currentFile_.Know(absolute, MarkOf(bytes));
    document_.Import({MESSAGE("Import (%1)"), {NameOf(path).toStdString()}}, image, absolute);
    last_ = {path, std::move(bytes), std::move(taken.findings), document_.History().index()};
    const Message notes = ImportNote(NotesThatDoNotSurvive(image));
    const Message read(MESSAGE("Imported with %1."), {last_.findings.Summary()});
    if (!last_.findings.IsEmpty())
        emit ReadOtherwise(notes.empty() ? read : Message::List({read, notes}, " "));
    else if (!notes.empty())
        emit Noted(Translated(notes));
}

void ImportCommands::ShowDetails()
{
    dlgImportDetails dialog(QFileInfo(last_.path).fileName(), last_.findings, &window_);
    emit Asking();
    // Only what is still the last step can be taken back and made again.
    const bool isAgain = dialogs_.Run(dialog) == QDialog::Accepted && dialog.WantsCommas() &&
                         document_.History().index() == last_.step;
    if (!isAgain)
        return;
    document_.History().undo();
    ImportOwn(last_.path, last_.bytes, CsvNumbers::DecimalCommas);
}

void ImportCommands::ImportList(const QString& path, std::string bytes)
{
    dlgImport dialog(document_.Image(), QFileInfo(path).fileName(), std::move(bytes), &window_);
    emit Asking();
    if (dialogs_.Run(dialog) != QDialog::Accepted)
        return;
    const PastePlan& plan = dialog.Plan();
    const Message summary = PlanSummary(document_.Image(), plan);
    document_.Edit({MESSAGE("Import (%1)"), {NameOf(path).toStdString()}},
                   [&plan](CloneImage& image) { ApplyPlan(plan, image); });
    emit Noted(Translated({MESSAGE("Imported from %1. %2."), {NameOf(path).toStdString(), summary}}));
}

void ImportCommands::mnuFileExportList_Click()
{
    dlgExportList dialog(document_.Image(), &window_);
    emit Asking();
    if (dialogs_.Run(dialog) != QDialog::Accepted)
        return;
    const QString& current = document_.FileName();
    const QFileInfo info(current);
    const QString path =
        dialogs_.ChooseFile(&window_, FileChoice::SaveList,
                            current.isEmpty() ? QString()
                                              : info.path() + QLatin1Char('/') + info.completeBaseName() +
                                                    tr(" list") + QStringLiteral(".csv"));
    if (path.isEmpty())
        return;
    const ListChoice choice = dialog.Choice();
    if (Report(WriteWholeFile(path, FormatList(document_.Image(), choice))))
        emit Noted(
            tr("Channels written to %1: %2.").arg(NameOf(path)).arg(CountRows(document_.Image(), choice)));
}

bool ImportCommands::Report(const std::optional<Problem>& problem)
{
    if (problem) {
        emit Asking();
        dialogs_.Ask(&window_, ErrorPrompt(*problem));
    }
    return !problem;
}

void ConnectImportNotes(ImportCommands& commands, StatusBar& statusBar, MessageBar& messageBar)
{
    QObject::connect(&commands, &ImportCommands::NothingImported, &statusBar, [&statusBar] {
        statusBar.ShowNote(
            StatusBar::tr("Nothing was imported: the file holds no record of this receiver and no list."));
    });
    QObject::connect(&commands, &ImportCommands::Noted, &statusBar, &StatusBar::ShowNote);
    QObject::connect(&commands, &ImportCommands::ReadOtherwise, &statusBar,
                     [&commands, &statusBar, &messageBar](const Message& text) {
                         if (statusBar.isHidden())
                             messageBar.Show({kKey, text, {{MESSAGE("&Details"), [&commands, &messageBar] {
                                                                messageBar.Withdraw(kKey);
                                                                commands.ShowDetails();
                                                            }}}});
                         else
                             statusBar.ShowNoteWithDetails(Translated(text),
                                                           [&commands] { commands.ShowDetails(); });
                     });
}

}  // namespace rqm5
