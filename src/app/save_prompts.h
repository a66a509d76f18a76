#pragma once

#include <QString>

#include "app/current_file.h"
#include "files/file_store.h"
#include "files/note_repair.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Asked before a save: Yes saves, No is Save As.
Prompt AlteredFilePrompt(const QString& path, CurrentFile::State state);
Prompt HardLinkPrompt(const QString& path, int names);

/// Asked before a repair: Yes saves under a new name, No in place.
Prompt RepairPrompt(const QString& path, const NoteRepair& repair);

/// What the status bar says after a save that kept an older file or changed something: empty when there is
/// nothing to say.
QString SaveNote(const QString& path, const SaveOutcome& outcome, const QString& kept);

/// What it says after an import of notes that will not survive a save; may be empty.
Message ImportNote(const std::vector<Message>& rows);

/// What it keeps saying while the current file cannot bring back notes.
Message LostNotesWarning(const QString& path, const std::vector<Message>& rows);

}  // namespace rqm5
