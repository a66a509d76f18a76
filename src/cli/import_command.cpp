#include <algorithm>
#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/list_import.h"
#include "cli/streams.h"
#include "files/csv_file.h"
#include "files/file_store.h"
#include "files/safe_notes.h"
#include "image/display_text.h"
#include "memory/change_words.h"

namespace rqm5 {
namespace {

Message RowCount(int count)
{
    return Counted(count, MESSAGE("1 row"), MESSAGE("%1 rows"));
}

void SayTaken(int rows, const Arguments& arguments, Console& console)
{
    Note(arguments[1], console,
         {arguments.Has("--dry-run") ? MESSAGE("%1 would be taken from %2") : MESSAGE("%1 taken from %2"),
          {RowCount(rows), SourceName(arguments[0])}});
}

/// What an import of a file of this program could not read as written.
void WarnOf(const CsvTaken& taken, Console& console)
{
    if (!taken.findings.IsEmpty())
        Warn(console, {MESSAGE("not everything was read as written; %1"), {taken.findings.Summary()}},
             taken.findings.Lines());
    if (taken.movedCarriers > 0)
        Warn(
            console,
            {MESSAGE(
                 "the carrier code of %1 moved one up, as with every import of an export: 300Hz is stored as "
                 "400Hz"),
             {RowCount(taken.movedCarriers)}},
            {});
}

/// Shows what would change.
Status ShowChanges(const CloneImage& before, const CloneImage& after, const Arguments& arguments, int rows,
                   Console& console)
{
    SayTaken(rows, arguments, console);
    for (const Message& change : DescribeChange(before, Difference(before, after)))
        console.out << VisibleText(change.English()) << '\n';
    return Status::Done;
}

/// Saves what came of an import, or shows it.
SaveEnd Finish(const CloneImage& before, CloneImage image, const Arguments& arguments, int rows,
               Console& console)
{
    if (arguments.Has("--safe-notes"))
        image = WithSafeNotes(std::move(image));
    if (arguments.Has("--dry-run"))
        return {ShowChanges(before, image, arguments, rows, console), false};
    QString kept;
    if (arguments.Has("--keep") && !IsStandard(arguments[1]) && Exists(arguments[1]))
        if (const auto problem = KeepOldFile(PathOf(arguments[1]), kept))
            return {Fail(console, *problem), false};
    const SaveEnd end = Save(arguments[1], image, console,
                             arguments.Has("--force") ? Unopenable::IsWritten : Unopenable::IsRefused);
    if (end.isWritten)
        SayTaken(rows, arguments, console);
    return end;
}

Status NothingTaken(const Arguments& arguments, Console& console)
{
    return Fail(console, {kDataError,
                          {MESSAGE("%1 holds no record of an RQ-M5; %2"),
                           {SourceName(arguments[0]), Unchanged(arguments[1])}}});
}

Status ImportOwn(const std::string& bytes, const CloneImage& before, const Arguments& arguments,
                 Console& console)
{
    CloneImage image = before;
    const CsvTaken taken = ParseCsv(
        bytes, image, arguments.Has("--decimal-comma") ? CsvNumbers::DecimalCommas : CsvNumbers::AsTheyStand);
    if (taken.rows == 0)
        return NothingTaken(arguments, console);
    const SaveEnd end = Finish(before, std::move(image), arguments, taken.rows, console);
    if (end.isWritten || arguments.Has("--dry-run"))
        WarnOf(taken, console);
    return end.status;
}

Status ImportList(const std::string& bytes, const CloneImage& before, const Arguments& arguments,
                  Console& console)
{
    const ListImport list = PlanListImport(bytes, before, arguments);
    if (list.problem)
        return Fail(console, *list.problem);
    Note(arguments[1], console, {MESSAGE("Read as a list: %1"), {list.description}});
    if (!list.refused.empty())
        Warn(console, {MESSAGE("not taken: %1"), {RowCount(static_cast<int>(list.refused.size()))}},
             list.refused);
    if (!list.remarks.empty())
        Warn(console, MESSAGE("left out:"), list.remarks);
    const auto rows = static_cast<int>(RowsWritten(list.plan).size());
    if (rows == 0)
        return Fail(console, {kDataError,
                              {MESSAGE("no row of %1 can be taken; %2"),
                               {SourceName(arguments[0]), Unchanged(arguments[1])}}});
    CloneImage image = before;
    ApplyPlan(list.plan, image);
    return Finish(before, std::move(image), arguments, rows, console).status;
}

}  // namespace

Status RunImport(const Arguments& arguments, Console& console)
{
    CloneImage image;
    if (const auto problem = LoadOrStart(arguments[1], image))
        return Fail(console, *problem);
    if (AreSameFile(arguments[0], arguments[1]))
        return Fail(console, SameFileProblem(arguments[1]));
    std::string bytes;
    if (const auto problem = ReadInput(arguments[0], bytes))
        return Fail(console, *problem);
    // What asks for a place or a mapping asks for a list, whatever titles the file has.
    const bool isList = arguments.Has("--map") || arguments.Has("--from-row") || !IsOwnCsv(bytes);
    if (!isList)
        return ImportOwn(bytes, image, arguments, console);
    return MayBeList(bytes) ? ImportList(bytes, image, arguments, console) : NothingTaken(arguments, console);
}

}  // namespace rqm5
