#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/values.h"
#include "files/csv_file.h"
#include "files/file_kind.h"
#include "files/file_store.h"
#include "files/safe_notes.h"
#include "image/display_text.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

void SayTaken(const CsvTaken& taken, const std::string& from, Console& console)
{
    const auto rows = [](int count) { return std::to_string(count) + (count == 1 ? " row" : " rows"); };
    console.out << rows(taken.rows) << " taken from " << VisibleText(from) << '\n';
    if (taken.movedCarriers > 0)
        Warn(console,
             "the carrier code of " + rows(taken.movedCarriers) +
                 " moved one up, as with every import of an export: 300Hz is stored as 400Hz",
             {});
}

}  // namespace

Status RunNew(const Arguments& arguments, Console& console)
{
    const std::string& path = arguments[0];
    if (Exists(path) && !arguments.Has("--force"))
        return Fail(console, {kFileOpenError, path + " exists already; --force replaces it"});
    CloneImage image =
        StartUpImage(ReadNumberIn(arguments.Value("--region", "0"), 0, kRegions - 1).value_or(0));
    if (arguments.Has("--empty"))
        NewImage(image);
    return Save(path, image, console).status;
}

Status RunImport(const Arguments& arguments, Console& console)
{
    CloneImage image;
    if (const auto problem = LoadOrStart(arguments[1], image))
        return Fail(console, *problem);
    if (AreSameFile(arguments[0], arguments[1]))
        return Fail(console, SameFileProblem(arguments[1]));
    CsvTaken taken;
    if (const auto problem = ImportCsv(PathOf(arguments[0]), image, taken))
        return Fail(console, *problem);
    if (taken.rows == 0)
        return Fail(console, {kDataError, arguments[0] + " holds no record of an RQ-M5; " + arguments[1] +
                                              " is as it was"});
    if (arguments.Has("--safe-notes"))
        image = WithSafeNotes(std::move(image));
    const SaveEnd end = Save(arguments[1], image, console,
                             arguments.Has("--force") ? Unopenable::IsWritten : Unopenable::IsRefused);
    if (end.isWritten)
        SayTaken(taken, arguments[0], console);
    return end.status;
}

}  // namespace rqm5
