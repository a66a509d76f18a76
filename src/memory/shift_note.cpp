#include "memory/shift_note.h"

#include "memory/channel_operations.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

constexpr int kLastRow = kShiftedRows - 1;

Message Moved(int first, int last, const char* one, const char* several)
{
    if (first > last)
        return MESSAGE("No row moved");
    return first == last ? Message(one, {first}) : Message(several, {first, last});
}

/// What was in the row that is no more. The bar is short, so what matters most comes first.
Message Lost(const CloneImage& before, int row)
{
    if (!before.MemData(row).HasChannel())
        return {MESSAGE("row %1 was empty, so nothing is lost"), {row}};
    const std::string frequency = before.MemText(row, kFrequency);
    const Message place = PlaceOfRow(before, row);
    return place.empty() ? Message(MESSAGE("lost: %1 MHz in row %2 (in no bank)"), {frequency, row})
                         : Message(MESSAGE("lost: %1 MHz in row %2 (%3)"), {frequency, row, place});
}

Message Note(const Message& moved, const Message& lost)
{
    return {MESSAGE("%1; %2."), {moved, lost}};
}

bool IsShown(RowRange shown)
{
    return shown == RowRange{0, kShiftedRows};
}

}  // namespace

Message InsertNote(const CloneImage& before, RowRange shown, int tableRow)
{
    if (IsShown(shown))
        return {};
    return Note(
        Moved(tableRow - 1, kLastRow - 1, MESSAGE("Row %1 moved down"), MESSAGE("Rows %1 to %2 moved down")),
        Lost(before, kLastRow));
}

Message DeleteNote(const CloneImage& before, RowRange shown, int tableRow)
{
    if (IsShown(shown))
        return {};
    return Note(Moved(tableRow, kLastRow, MESSAGE("Row %1 moved up"), MESSAGE("Rows %1 to %2 moved up")),
                Lost(before, tableRow - 1));
}

}  // namespace rqm5
