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
Status RunNew(const Arguments& arguments, Console& console)
{
    const std::string& path = arguments[0];
    if (Exists(path) && !arguments.Has("--force"))
        return Fail(console, {kFileOpenError, {MESSAGE("%1 exists already; --force replaces it"), {path}}});
    CloneImage image =
        StartUpImage(ReadNumberIn(arguments.Value("--region", "0"), 0, kRegions - 1).value_or(0));
    if (arguments.Has("--empty"))
        NewImage(image);
    return Save(path, image, console).status;
}

}  // namespace rqm5
