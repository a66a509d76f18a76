#include "app/save_prompts.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

#include "language/translated.h"
#include "ui/plain_text.h"
#include "ui/row_list.h"

namespace rqm5 {
namespace {

/// Rows that are named; the rest are counted.
constexpr std::size_t kNamedRows = 10;

QString Tr(const char* text, int count = -1)
{
    return QCoreApplication::translate("SavePrompts", text, nullptr, count);
}

QString NameOf(const QString& path)
{
    return VisibleText(QFileInfo(path).fileName());
}

Message OneLine(const std::vector<Message>& rows)
{
    return NamedRows(rows, kNamedRows, "; ");
}

Prompt ReplaceQuestion(const QString& text, const QString& details, const QString& yes)
{
    Prompt question;
    question.title = Tr(QT_TRANSLATE_NOOP("SavePrompts", "Save"));
    question.text = text;
    question.details = details;
    question.icon = QMessageBox::Warning;
    question.buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    question.defaultButton = QMessageBox::No;
    question.captions = {{QMessageBox::Yes, yes},
                         {QMessageBox::No, Tr(QT_TRANSLATE_NOOP("SavePrompts", "Save As..."))}};
    return question;
}

}  // namespace

Prompt AlteredFilePrompt(const QString& path, CurrentFile::State state)
{
    const QString overwrite = Tr(QT_TRANSLATE_NOOP("SavePrompts", "Overwrite"));
    const QString file = Tr(QT_TRANSLATE_NOOP("SavePrompts", "File: %1")).arg(VisibleText(path));
    if (state == CurrentFile::State::Removed)
        return ReplaceQuestion(
            Tr(QT_TRANSLATE_NOOP("SavePrompts", "The file was removed or renamed by another program.")),
            file + QLatin1Char('\n') +
                Tr(QT_TRANSLATE_NOOP("SavePrompts", "Overwrite makes a file of this name again.")),
            overwrite);
    return ReplaceQuestion(
        Tr(QT_TRANSLATE_NOOP("SavePrompts", "The file was changed by another program.")),
        file + QLatin1Char('\n') +
            Tr(QT_TRANSLATE_NOOP("SavePrompts",
                                 "Overwrite puts your version in its place, and what the other program "
                                 "saved is lost. Save As keeps both.")),
        overwrite);
}

Prompt HardLinkPrompt(const QString& path, int names)
{
    Prompt question = ReplaceQuestion(
        Tr(QT_TRANSLATE_NOOP("SavePrompts", "The file has more than one name.")),
        Tr(QT_TRANSLATE_NOOP("SavePrompts",
                             "File: %1\nIt is one of %2 names (hard links) of the same file. A save gives "
                             "this name a file of its own; the others keep the old contents."))
            .arg(VisibleText(path), QString::number(names)),
        Tr(QT_TRANSLATE_NOOP("SavePrompts", "Save")));
    question.defaultButton = QMessageBox::Yes;
    return question;
}

Prompt RepairPrompt(const QString& path, const NoteRepair& repair)
{
    std::vector<Message> lines;
    lines.reserve(repair.notes.size());
    for (const RepairedNote& note : repair.notes)
        lines.push_back(RepairText(note));
    Prompt question;
    question.title = Tr(QT_TRANSLATE_NOOP("SavePrompts", "Repair"));
    question.text = Tr(QT_TRANSLATE_NOOP("SavePrompts", "These notes keep the file from being opened."));
    question.details = Tr(QT_TRANSLATE_NOOP("SavePrompts",
                                            "Commas become semicolons, quotes apostrophes:\n%1\n\nIn Place "
                                            "keeps the old file as %2."))
                           .arg(RowList(lines, kNamedRows), NameOf(path) + QLatin1Char('~'));
    if (lines.size() > kNamedRows)
        question.more = RowList(lines, lines.size());
    question.icon = QMessageBox::Question;
    question.buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    question.defaultButton = QMessageBox::Yes;
    question.captions = {{QMessageBox::Yes, Tr(QT_TRANSLATE_NOOP("SavePrompts", "Save As..."))},
                         {QMessageBox::No, Tr(QT_TRANSLATE_NOOP("SavePrompts", "In Place"))}};
    return question;
}

QString SaveNote(const QString& path, const SaveOutcome& outcome, const QString& kept)
{
    QStringList sentences;
    if (!kept.isEmpty())
        sentences << Tr(QT_TRANSLATE_NOOP("SavePrompts", "%1 was no clone file; what it was is kept as %2."))
                         .arg(NameOf(path), NameOf(kept));
    if (!outcome.changedValues.empty())
        sentences << Tr(QT_TRANSLATE_NOOP("SavePrompts",
                                          "Saved, but a clone file cannot hold these values; they read back "
                                          "otherwise: %1."))
                         .arg(Translated(OneLine(outcome.changedValues)));
    if (!outcome.accessChanges.empty())
        sentences << Tr(QT_TRANSLATE_NOOP("SavePrompts",
                                          "Saved, but not all that belonged to the old file could be kept: "
                                          "%1."))
                         .arg(Translated(OneLine(outcome.accessChanges)));
    return sentences.join(QLatin1Char(' '));
}

Message ImportNote(const std::vector<Message>& rows)
{
    if (rows.empty())
        return {};
    return {MESSAGE("A comma or quotes in a note will not survive a save as a clone file: %1."),
            {OneLine(rows)}};
}

Message LostNotesWarning(const QString& path, const std::vector<Message>& rows)
{
    if (rows.empty())
        return {};
    return {MESSAGE("%1 was saved with notes that it cannot bring back; change them and save again: %2."),
            {NameOf(path).toStdString(), OneLine(rows)}};
}

}  // namespace rqm5
