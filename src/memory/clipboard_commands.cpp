#include "memory/clipboard_commands.h"

#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>

#include "files/safe_notes.h"
#include "language/translated.h"
#include "memory/channel_operations.h"
#include "memory/fill_dialog.h"
#include "memory/note_line.h"
#include "memory/parts_dialog.h"
#include "memory/paste_dialog.h"
#include "memory/table_clipboard.h"

namespace rqm5 {
namespace {

const QMimeData& Clipboard()
{
    static const QMimeData kNothing;
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr ? *data : kNothing;
}

/// What any of the channels comes with.
Parts PartsOf(const std::vector<ListedChannel>& channels)
{
    Parts parts;
    for (const ListedChannel& channel : channels)
        for (int part = 0; part < kChannelParts; ++part)
            if (channel.given.Has(part))
                parts.Add(part);
    return parts;
}

void MakeNotesSafe(CloneImage& image, const RowList& rows)
{
    for (const int row : rows)
        image.MemData(row).note = SafeNote(image.MemData(row).note);
}

}  // namespace

ClipboardCommands::ClipboardCommands(const RowSelection& selection, Dialogs& dialogs, QWidget& page)
    : QObject(&page), selection_(selection), dialogs_(dialogs), page_(page)
{
}

bool ClipboardCommands::CanPaste()
{
    return MayHoldChannels(Clipboard());
}

RowList ClipboardCommands::RowsFrom(int row) const
{
    const RowRange group = selection_.Group();
    return RowsOf(RowRange{row, std::max(0, group.first + group.count - row)});
}

void ClipboardCommands::mnuEditCopy_Click()
{
    const RowList rows = selection_.Rows();
    if (!rows.empty())
        QGuiApplication::clipboard()->setMimeData(ClipOf(selection_.Image(), rows));
}

void ClipboardCommands::mnuEditCut_Click()
{
    const RowList rows = selection_.Rows();
    if (rows.empty())
        return;
    mnuEditCopy_Click();
    selection_.Edit({MESSAGE("Cut (%1)"), {selection_.NameOf(rows)}},
                    [rows](CloneImage& image) { ClearRows(image, rows); });
}

void ClipboardCommands::TellNothing(const Message& title)
{
    dialogs_.Ask(
        &page_, {.title = Translated(title),
                 .text = tr("There is no channel in it."),
                 .details = tr("Copy rows of this program, or lines with a frequency each: of a spreadsheet, "
                               "a web page or a text."),
                 .icon = QMessageBox::Information});
}

void ClipboardCommands::Take(const Message& operation, const PastePlan& plan, bool isShown)
{
    if (isShown) {
        dlgPaste preview(Translated(operation), selection_.Image(), plan, &page_);
        if (dialogs_.Run(preview) != QDialog::Accepted)
            return;
    }
    const RowList rows = RowsWritten(plan);
    if (rows.empty())
        return;
    const int column = selection_.Table().currentIndex().column();
    selection_.Edit({MESSAGE("%1 (%2)"), {operation, selection_.NameOf(rows)}}, [&](CloneImage& image) {
        ApplyPlan(plan, image);
        if (WantsSafeNotes())
            MakeNotesSafe(image, rows);
    });
    selection_.Table().SelectRows(rows, column);
    emit Written(rows);
}

void ClipboardCommands::Paste(const std::vector<ListedChannel>& channels, int row)
{
    if (channels.empty()) {
        TellNothing(MESSAGE("Paste"));
        return;
    }
    const PastePlan plan = PlanPaste(selection_.Image(), RowsFrom(row), channels);
    Take(MESSAGE("Paste"), plan, NeedsLook(selection_.Image(), plan));
}

void ClipboardCommands::mnuEditPaste_Click()
{
    if (selection_.Current() >= 0)
        Paste(ChannelsOf(Clipboard()), selection_.Top());
}

void ClipboardCommands::Drop(const QMimeData& data, int row)
{
    // The preview comes when the other program's drag has ended.
    QMetaObject::invokeMethod(
        this, [this, channels = ChannelsOf(data), row] { Paste(channels, row); }, Qt::QueuedConnection);
}

void ClipboardCommands::mnuEditPasteSpecial_Click()
{
    const std::vector<ListedChannel> channels = ChannelsOf(Clipboard());
    const RowList selected = selection_.Rows();
    if (selected.empty())
        return;
    if (channels.empty()) {
        TellNothing(MESSAGE("Paste Special"));
        return;
    }
    dlgParts dialog(Translated(MESSAGE("Paste Special")), tr("Paste these columns onto the selected rows:"),
                    PartsOf(channels), RegionOf(selection_.Image().ModelNo()), &page_);
    dialog.Choose(specialParts_);
    if (dialogs_.Run(dialog) != QDialog::Accepted)
        return;
    specialParts_ = dialog.Chosen();
    // Onto one row as many are written as there are; onto several, no more than those.
    RowList rows = selected;
    if (selected.size() == 1) {
        rows = RowsFrom(selected.front());
        rows.resize(std::min(rows.size(), channels.size()));
    }
    const PastePlan plan = PlanParts(selection_.Image(), rows, channels, specialParts_);
    Take(MESSAGE("Paste Special"), plan,
         std::ranges::any_of(plan, [](const PlannedRow& row) { return !row.IsTaken(); }));
}

void ClipboardCommands::mnuEditFillDown_Click()
{
    const RowList rows = selection_.Rows();
    if (rows.size() < 2)
        return;
    const Channel first = selection_.Image().MemData(rows.front());
    dlgParts dialog(Translated(MESSAGE("Fill Down")),
                    tr("Give the selected rows these columns of the first of them:"), Parts::All(),
                    RegionOf(selection_.Image().ModelNo()), &page_);
    dialog.Choose(downParts_);
    if (dialogs_.Run(dialog) != QDialog::Accepted)
        return;
    downParts_ = dialog.Chosen();
    const PastePlan plan =
        PlanParts(selection_.Image(), RowList(rows.begin() + 1, rows.end()), Listed({first}), downParts_);
    Take(MESSAGE("Fill Down"), plan,
         std::ranges::any_of(plan, [](const PlannedRow& row) { return !row.IsTaken(); }));
    selection_.Table().SelectRows(rows, selection_.Table().currentIndex().column());
}

void ClipboardCommands::mnuEditFillSeries_Click()
{
    if (selection_.Current() < 0)
        return;
    dlgFill dialog(selection_.Image(), selection_.Group(), selection_.Top(), &page_);
    if (dialogs_.Run(dialog) == QDialog::Accepted)
        Take(MESSAGE("Fill Series"), dialog.Plan(), false);
}

}  // namespace rqm5
