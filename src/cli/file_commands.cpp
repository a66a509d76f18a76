#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/values.h"
#include "files/csv_file.h"
#include "files/file_store.h"
#include "image/display_text.h"
#include "memory/start_image.h"

namespace rqm5 {

Status RunNew(const Arguments& arguments, Console& console)
{
    const std::string& path = arguments[0];
    if (Exists(path) && !arguments.Has("--force"))
        return Fail(console, {kFileOpenError, path + " exists already; --force replaces it"});
    CloneImage image =
        StartUpImage(ReadNumberIn(arguments.Value("--region", "0"), 0, kRegions - 1).value_or(0));
    if (arguments.Has("--empty"))
        NewImage(image);
    return Save(path, image, console);
}

Status RunExport(const Arguments& arguments, Console& console)
{
    CloneImage image;
    if (const auto problem = Load(arguments[0], image))
        return Fail(console, *problem);
    if (AreSameFile(arguments[0], arguments[1]))
        return Fail(console, SameFileProblem(arguments[1]));
    if (const auto problem = ExportCsv(PathOf(arguments[1]), image))
        return Fail(console, *problem);
    const std::vector<std::string> formulas = NotesThatLookLikeFormulas(image);
    if (!formulas.empty())
        Warn(console, "a spreadsheet would run these notes as formulas:", formulas);
    return Status::Done;
}

Status RunImport(const Arguments& arguments, Console& console)
{
    CloneImage image;
    if (const auto problem = LoadOrStart(arguments[1], image))
        return Fail(console, *problem);
    if (AreSameFile(arguments[0], arguments[1]))
        return Fail(console, SameFileProblem(arguments[1]));
    int taken = 0;
    if (const auto problem = ImportCsv(PathOf(arguments[0]), image, taken))
        return Fail(console, *problem);
    if (taken == 0)
        return Fail(console, {kDataError, arguments[0] + " holds no record of an RQ-M5; " + arguments[1] +
                                              " is as it was"});
    console.out << taken << (taken == 1 ? " row" : " rows") << " taken from " << VisibleText(arguments[0])
                << '\n';
    return Save(arguments[1], image, console);
}

}  // namespace rqm5
