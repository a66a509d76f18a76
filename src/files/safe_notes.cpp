#include "files/safe_notes.h"

#include <algorithm>

#include "files/clone_lines.h"
#include "image/display_text.h"
#include "image/utf8.h"

namespace rqm5 {

bool NoteSurvives(const std::string& note)
{
    if (note.empty())
        return true;
    const std::string text = note + "\r\n";
    return CloneLineReader(text).NextField() == note && IsValidUtf8(note);
}

std::string SafeNote(std::string note)
{
    if (NoteSurvives(note))
        return note;
    note = VisibleText(note);
    std::replace(note.begin(), note.end(), ',', ';');
    if (note.starts_with('"'))
        std::replace(note.begin(), note.end(), '"', '\'');
    return note;
}

CloneImage WithSafeNotes(CloneImage image)
{
    for (int row = 0; row < kVfoRows; ++row)
        image.VFOData(row).note = SafeNote(image.VFOData(row).note);
    for (int row = 0; row < kMemoryRows; ++row)
        image.MemData(row).note = SafeNote(image.MemData(row).note);
    return image;
}

}  // namespace rqm5
