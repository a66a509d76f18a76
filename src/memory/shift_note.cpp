#include "memory/shift_note.h"

#include <QCoreApplication>

#include "memory/channel_operations.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

constexpr int kLastRow = kShiftedRows - 1;

QString Translate(const char* text)
{
    return QCoreApplication::translate("ShiftNote", text);
}

QString Moved(int first, int last, const char* one, const char* several)
{
    if (first > last)
        return Translate("No row moved");
    return first == last ? Translate(one).arg(first) : Translate(several).arg(first).arg(last);
}

/// What was in the row that is no more. The bar is short, so what matters most comes first.
QString Lost(const CloneImage& before, int row)
{
    if (!before.MemData(row).HasChannel())
        return Translate("row %1 was empty, so nothing is lost").arg(row);
    const QString place = QString::fromStdString(PlaceOfRow(before, row));
    return Translate("lost: %1 MHz in row %2 (%3)")
        .arg(QString::fromStdString(before.MemText(row, kFrequency)))
        .arg(row)
        .arg(place.isEmpty() ? Translate("in no bank") : place);
}

QString Note(const QString& moved, const QString& lost)
{
    return Translate("%1; %2.").arg(moved, lost);
}

bool IsShown(RowRange shown)
{
    return shown == RowRange{0, kShiftedRows};
}

}  // namespace

QString InsertNote(const CloneImage& before, RowRange shown, int tableRow)
{
    if (IsShown(shown))
        return {};
    return Note(Moved(tableRow - 1, kLastRow - 1, QT_TRANSLATE_NOOP("ShiftNote", "Row %1 moved down"),
                      QT_TRANSLATE_NOOP("ShiftNote", "Rows %1 to %2 moved down")),
                Lost(before, kLastRow));
}

QString DeleteNote(const CloneImage& before, RowRange shown, int tableRow)
{
    if (IsShown(shown))
        return {};
    return Note(Moved(tableRow, kLastRow, QT_TRANSLATE_NOOP("ShiftNote", "Row %1 moved up"),
                      QT_TRANSLATE_NOOP("ShiftNote", "Rows %1 to %2 moved up")),
                Lost(before, tableRow - 1));
}

}  // namespace rqm5
