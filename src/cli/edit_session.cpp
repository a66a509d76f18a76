#include "cli/edit_session.h"

#include <ostream>

#include "cli/clone_files.h"
#include "cli/streams.h"
#include "files/file_kind.h"
#include "files/safe_notes.h"
#include "image/display_text.h"
#include "memory/change_words.h"

namespace rqm5 {
namespace {

/// "3 rows, 2 settings".
Message Summary(const ImageChange& change)
{
    std::vector<Message> parts;
    const auto add = [&parts](std::size_t count, const char* one, const char* many) {
        if (count > 0)
            parts.push_back(Counted(static_cast<int>(count), one, many));
    };
    add(change.MemoryRows().size() + change.VfoRows().size(), MESSAGE("1 row"), MESSAGE("%1 rows"));
    add(change.Settings.size(), MESSAGE("1 setting"), MESSAGE("%1 settings"));
    add(change.BankSize.size() + change.BankLink.size(), MESSAGE("1 bank value"), MESSAGE("%1 bank values"));
    return parts.empty() ? Message() : Message::List(std::move(parts), ", ");
}

Status SaveEdited(const std::string& path, const Arguments& arguments, const CloneImage& image,
                  const ImageChange& change, Console& console)
{
    QString kept;
    if (arguments.Has("--keep") && !IsStandard(path))
        if (const auto problem = KeepOldFile(PathOf(path), kept))
            return Fail(console, {problem->text, problem->details, {MESSAGE("%1."), {Unchanged(path)}}});
    const SaveEnd end =
        Save(path, image, console, arguments.Has("--force") ? Unopenable::IsWritten : Unopenable::IsRefused);
    if (end.isWritten && !console.isQuiet)
        Note(path, console,
             change.IsEmpty() ? Message(MESSAGE("Nothing to change in %1"), {SourceName(path)})
                              : Message(MESSAGE("%1 changed in %2"), {Summary(change), SourceName(path)}));
    return end.status;
}

}  // namespace

Status EditFile(const std::string& path, const Arguments& arguments, Console& console, const ImageEdit& edit)
{
    CloneImage before;
    if (const auto problem = Load(path, before))
        return Fail(console, *problem);
    CloneImage after = before;
    if (const auto problem = edit(after))
        return Fail(console, {problem->text, problem->details, {MESSAGE("%1."), {Unchanged(path)}}});
    if (arguments.Has("--safe-notes"))
        after = WithSafeNotes(std::move(after));
    const ImageChange change = Difference(before, after);
    if (arguments.Has("--dry-run")) {
        for (const Message& line : DescribeChange(before, change))
            console.out << VisibleText(line.English()) << '\n';
        return Status::Done;
    }
    if (!change.IsEmpty() || IsStandard(path))
        return SaveEdited(path, arguments, after, change, console);
    if (!console.isQuiet)
        console.out << "Nothing to change in " << VisibleText(path) << '\n';
    return Status::Done;
}

RowChoice ChoiceOfRows(const std::string& text)
{
    auto read = RowChoice::Read(text);
    return std::holds_alternative<RowChoice>(read) ? std::get<RowChoice>(std::move(read)) : RowChoice();
}

std::variant<RowList, Problem> NamedRows(const CloneImage& image, const RowChoice& choice, bool needsChannels)
{
    if (const Message fault = choice.Fault(image); !fault.empty())
        return Problem{kDataError, {MESSAGE("ROWS names channels that are not there: %1"), {fault}}};
    RowList rows = choice.MemoryRows(image);
    if (needsChannels)
        rows = ChannelsAmong(image, rows);
    if (rows.empty())
        return Problem{kDataError, needsChannels ? MESSAGE("none of the rows that ROWS names holds a channel")
                                                 : MESSAGE("ROWS names no row of this file")};
    return rows;
}

}  // namespace rqm5
