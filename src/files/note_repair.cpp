#include "files/note_repair.h"

#include "files/clone_lines.h"
#include "files/safe_notes.h"
#include "files/text_encoding.h"
#include "image/display_text.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

bool HoldsNote(int line)
{
    return line >= kVfoNoteLine && line < kBankLine;
}

/// What a line of its own says: without the quotes around all of it, as the loader takes it.
std::string NoteOfLine(std::string_view line)
{
    CloneLineReader reader(line);
    const auto field = reader.NextField();
    return std::string(reader.FirstSplitLine() == 0 ? field.value_or("") : line);
}

}  // namespace

std::variant<NoteRepair, ParseError> RepairNotes(std::string_view text)
{
    CloneImage image;
    const auto refusal = ParseCloneFile(text, image);
    if (!refusal)
        return NoteRepair{std::string(text), {}};
    const std::string decoded = DecodeFileText(text);
    CloneLineReader reader(decoded);
    NoteRepair repair;
    for (int number = kStartLine; number < kCloneLines; ++number) {
        const auto line = reader.NextLine();
        if (!line)
            return *refusal;
        std::string kept(*line);
        const std::string note = HoldsNote(number) ? NoteOfLine(*line) : std::string();
        if (!NoteSurvives(note)) {
            kept = SafeNote(note);
            repair.notes.push_back({number + 1, CloneLineName(number), note, kept});
        }
        repair.text += kept + "\r\n";
    }
    if (repair.notes.empty())
        return *refusal;
    if (const auto stillRefused = ParseCloneFile(repair.text, image))
        return *stillRefused;
    return repair;
}

Message RepairText(const RepairedNote& note)
{
    return {MESSAGE("line %1, %2: %3 -> %4"),
            {note.line, note.name, VisibleText(note.before), VisibleText(note.after)}};
}

}  // namespace rqm5
