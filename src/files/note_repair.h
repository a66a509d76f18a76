#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "files/clone_file.h"

namespace rqm5 {

/// A note that keeps a clone file from being opened, and what it becomes.
struct RepairedNote
{
    int line;      ///< counted from 1
    Message name;  ///< "note of memory row 12"
    std::string before;
    std::string after;
};

struct NoteRepair
{
    std::string text;  ///< the whole file: all other lines are as they were, in UTF-8 with CR LF
    std::vector<RepairedNote> notes;
};

/// Reads a text that is refused as a clone file because of nothing but its notes: each line is one note, and
/// each note gets its safe form.
/// \return why that does not help when the text is no such file; no notes when it can be opened as it is
std::variant<NoteRepair, ParseError> RepairNotes(std::string_view text);

/// A repaired note in words: "line 1285, note of memory row 3: A,B -> A;B".
Message RepairText(const RepairedNote& note);

}  // namespace rqm5
