#include "memory/row_commands.h"

#include <algorithm>

#include "language/translated.h"
#include "memory/channel_operations.h"
#include "memory/row_names.h"
#include "memory/shift_note.h"

namespace rqm5 {

RowCommands::RowCommands(const RowSelection& selection, Dialogs& dialogs, QWidget& page)
    : QObject(&page), selection_(selection), dialogs_(dialogs), page_(page)
{
}

bool RowCommands::IsShiftable() const
{
    const int tableRow = selection_.Table().CurrentTableRow();
    return !selection_.IsFiltered() && tableRow >= 1 && tableRow <= kShiftedRows;
}

/// \param what  what will be hit, as a sentence
bool RowCommands::Confirm(const QString& title, const QString& text, const Message& what)
{
    return dialogs_.Ask(&page_,
                        {.title = title,
                         .text = text,
                         .details = Translated(what) + QLatin1Char(' ') + tr("Edit > Undo brings it back."),
                         .icon = QMessageBox::Warning,
                         .buttons = QMessageBox::Ok | QMessageBox::Cancel,
                         .defaultButton = QMessageBox::Cancel}) == QMessageBox::Ok;
}

void RowCommands::EditRows(const Message& operation, RowsFunction change)
{
    const RowList rows = selection_.Rows();
    if (!rows.empty())
        selection_.Edit({MESSAGE("%1 (%2)"), {operation, selection_.NameOf(rows)}},
                        [=](CloneImage& image) { change(image, rows); });
}

void RowCommands::EditGroup(const Message& operation, RowsFunction change)
{
    const RowList rows = selection_.Shown();
    if (rows.empty())
        return;
    selection_.Edit({MESSAGE("%1 (%2)"), {operation, selection_.NameOfGroup()}},
                    [=](CloneImage& image) { change(image, rows); });
    HighlightCurrentRow();
}

/// Selects the current row alone, from its first column on.
void RowCommands::HighlightCurrentRow()
{
    selection_.Table().SelectTableRow(selection_.Table().CurrentTableRow());
}

void RowCommands::cmbClear_Click()
{
    const RowList rows = selection_.Rows();
    if (rows.empty())
        return;
    const Message name = selection_.NameOf(rows);
    const Message what = rows.size() == 1 ? Message(MESSAGE("This clears %1, %2."),
                                                    {name, selection_.ContentsOf(rows.front())})
                                          : Message(MESSAGE("This clears %1."), {name});
    if (Confirm(tr("CLEAR OK"), tr("Clear cannot be undone.\nAre you sure that you want to do the clear?"),
                what))
        EditRows(MESSAGE("Clear"), ClearRows);
}

void RowCommands::cmbClAll_Click()
{
    if (!selection_.Shown().empty() &&
        Confirm(tr("CLEAR OK"),
                tr("Clear cannot be undone.\nAre you sure that you want to clear all memory?"),
                {MESSAGE("This clears %1."), {selection_.NameOfGroup()}}))
        EditGroup(MESSAGE("Clear All"), ClearRows);
}

void RowCommands::cmbDelete_Click()
{
    if (!IsShiftable())
        return;
    // The row goes by its number in the table, whatever group is shown, so the question names it.
    const int row = selection_.Table().CurrentTableRow() - 1;
    const Message name = RowName(selection_.Image(), row);
    if (!Confirm(tr("DELETE OK"),
                 tr("Delete cannot be undone.\nAre you sure that you want to do the delete?"),
                 {MESSAGE("This deletes %1, %2."), {name, selection_.ContentsOf(row)}}))
        return;
    const Message note = DeleteNote(selection_.Image(), selection_.Group(), row + 1);
    selection_.Edit({MESSAGE("Delete (%1)"), {selection_.NameOf(row)}},
                    [row](CloneImage& image) { DeleteTableRow(image, row + 1); });
    HighlightCurrentRow();
    emit Noted(Translated(note));
}

void RowCommands::cmbInsert_Click()
{
    if (!IsShiftable())
        return;
    const int tableRow = selection_.Table().CurrentTableRow();
    const Message note = InsertNote(selection_.Image(), selection_.Group(), tableRow);
    selection_.Edit({MESSAGE("Insert (%1)"), {selection_.NameOf(tableRow - 1)}},
                    [tableRow](CloneImage& image) { InsertTableRow(image, tableRow); });
    HighlightCurrentRow();
    emit Noted(Translated(note));
}

void RowCommands::cmbEnable_Click()
{
    EditRows(MESSAGE("Enable"), EnableRows);
}

void RowCommands::cmbDisable_Click()
{
    EditRows(MESSAGE("Disable"), DisableRows);
}

void RowCommands::cmbEnAll_Click()
{
    EditGroup(MESSAGE("Enable All"), EnableRows);
}

void RowCommands::cmbDisAll_Click()
{
    EditGroup(MESSAGE("Disable All"), DisableRows);
}

void RowCommands::Toggle()
{
    const RowList channels = ChannelsAmong(selection_.Image(), selection_.Rows());
    const bool isAnyOff =
        std::ranges::any_of(channels, [this](int row) { return !selection_.Image().MemEnable(row); });
    if (channels.empty())
        return;
    if (isAnyOff)
        cmbEnable_Click();
    else
        cmbDisable_Click();
}

}  // namespace rqm5
