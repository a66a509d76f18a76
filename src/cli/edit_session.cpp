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

std::string Counted(std::size_t count, const std::string& word)
{
    return std::to_string(count) + ' ' + word + (count == 1 ? "" : "s");
}

/// "3 rows and 2 settings changed".
std::string Summary(const ImageChange& change)
{
    const std::size_t rows = change.MemoryRows().size() + change.VfoRows().size();
    const std::size_t banks = change.BankSize.size() + change.BankLink.size();
    std::string text;
    for (const auto& [count, word] : {std::pair(rows, "row"), std::pair(change.Settings.size(), "setting"),
                                      std::pair(banks, "bank value")})
        if (count > 0)
            text += (text.empty() ? "" : ", ") + Counted(count, word);
    return text + " changed";
}

Status SaveEdited(const std::string& path, const Arguments& arguments, const CloneImage& image,
                  const ImageChange& change, Console& console)
{
    QString kept;
    if (arguments.Has("--keep") && !IsStandard(path))
        if (const auto problem = KeepOldFile(PathOf(path), kept))
            return Fail(console, {problem->text, problem->details, Unchanged(path) + "."});
    const SaveEnd end =
        Save(path, image, console, arguments.Has("--force") ? Unopenable::IsWritten : Unopenable::IsRefused);
    if (end.isWritten && !console.isQuiet)
        NotesOf(path, console) << Summary(change) << " in " << VisibleText(SourceName(path)) << '\n';
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
        return Fail(console, {problem->text, problem->details, Unchanged(path) + "."});
    if (arguments.Has("--safe-notes"))
        after = WithSafeNotes(std::move(after));
    const ImageChange change = Difference(before, after);
    if (arguments.Has("--dry-run")) {
        for (const std::string& line : DescribeChange(before, change))
            console.out << VisibleText(line) << '\n';
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
    if (const std::string fault = choice.Fault(image); !fault.empty())
        return Problem{kDataError, "ROWS names channels that are not there: " + fault};
    RowList rows = choice.MemoryRows(image);
    if (needsChannels)
        rows = ChannelsAmong(image, rows);
    if (rows.empty())
        return Problem{kDataError, needsChannels ? "none of the rows that ROWS names holds a channel"
                                                 : "ROWS names no row of this file"};
    return rows;
}

}  // namespace rqm5
