#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/streams.h"
#include "files/file_kind.h"
#include "files/file_store.h"
#include "files/note_repair.h"
#include "image/display_text.h"

namespace rqm5 {
namespace {

std::optional<Problem> Write(const std::string& path, const std::string& text, Console& console)
{
    if (IsStandard(path)) {
        console.out << text;
        return std::nullopt;
    }
    WriteReport report;
    const auto problem = WriteWholeFile(PathOf(path), text, &report);
    if (!report.accessChanges.empty())
        Warn(console, NotAllKept(path), report.accessChanges);
    return problem;
}

std::optional<Problem> WriteInPlace(const std::string& path, const std::string& text, Console& console)
{
    QString kept;
    if (auto problem = KeepOldFile(PathOf(path), kept))
        return problem;
    console.out << "The old file is kept as " << VisibleText(kept.toStdString()) << ".\n";
    return Write(path, text, console);
}

std::optional<Problem> WriteRepaired(const Arguments& arguments, const std::string& text, Console& console)
{
    if (arguments.Has("--in-place"))
        return WriteInPlace(arguments[0], text, console);
    const std::string path = arguments.Value("--to");
    if (path.empty()) {
        console.out << "Nothing was written: add --to NEW or --in-place.\n";
        return std::nullopt;
    }
    if (Exists(path))
        return Problem{kFileOpenError, {MESSAGE("%1: there is a file already; choose another name"), {path}}};
    return Write(path, text, console);
}

}  // namespace

Status RunRepair(const Arguments& arguments, Console& console)
{
    std::string bytes;
    if (const auto problem = ReadInput(arguments[0], bytes))
        return Fail(console, *problem);
    const auto result = RepairNotes(bytes);
    if (const auto* error = std::get_if<ParseError>(&result))
        return Fail(console, {kDataError, Message(MESSAGE("%1: %2"), {arguments[0], error->reason})});
    const auto& repair = std::get<NoteRepair>(result);
    if (repair.notes.empty()) {
        console.out << VisibleText(arguments[0]) << " can be opened; there is nothing to repair.\n";
        return Status::Done;
    }
    for (const RepairedNote& note : repair.notes)
        Note(arguments.Value("--to"), console, RepairText(note));
    const auto problem = WriteRepaired(arguments, repair.text, console);
    return problem ? Fail(console, *problem) : Status::Done;
}

}  // namespace rqm5
