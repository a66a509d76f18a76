#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/receiver_session.h"
#include "cli/values.h"
#include "files/file_store.h"
#include "link/receiver_checks.h"
#include "link/receiver_reader.h"
#include "link/receiver_writer.h"

namespace rqm5 {
namespace {

/// Without a name no backup is wanted.
std::optional<Problem> BackupObstacle(const std::string& path)
{
    // The file may be the one that is to be written, or the backup of last week.
    if (!path.empty() && Exists(path))
        return Problem{kFileOpenError, path +
                                           ": there is a file already, and a backup replaces none; "
                                           "choose another name"};
    return path.empty() ? std::nullopt : ReadingObstacle(PathOf(path));
}

Status KeepBackup(const CloneImage& image, const TransferScope& scope, const std::string& path,
                  ReceiverSession& session, Console& console)
{
    CloneImage backup;
    session.Observer().Begin(BlocksToBackUp(image, scope));
    const TransferResult result = ReadBackup(image, scope, session.Link(), session.Observer(), backup);
    const Status status = session.Finish(result);
    if (result == TransferResult::Cancelled)
        console.err << NothingWritten() << '\n';
    if (status != Status::Done)
        return status;
    return SaveRead(path, backup, console, NothingWritten());
}

Status Write(const CloneImage& image, const TransferScope& scope, ReceiverSession& session, Console& console)
{
    ReceiverWriter writer(image, scope, session.Link(), session.Observer());
    session.Observer().Begin(writer.Plan().BlockCount());
    const TransferResult result = writer.Write();
    const Status status = session.Finish(result);
    if (result == TransferResult::Cancelled)
        console.err << writer.Plan().Summary() << '\n';
    return status;
}

}  // namespace

Status RunRead(const Arguments& arguments, Console& console)
{
    CloneImage image;
    auto problem = LoadOrStart(arguments[0], image);
    if (!problem)
        problem = ReadingObstacle(PathOf(arguments[0]));
    if (problem)
        return Fail(console, *problem);
    const TransferScope scope = ScopeOf(arguments);
    ReceiverSession session(arguments, console);
    session.Observer().Begin(BlocksToBackUp(image, scope));
    ReceiverReader reader(image, session.Link(), session.Observer());
    const Status status = session.Finish(reader.Read(scope));
    return status == Status::Done ? SaveRead(arguments[0], image, console) : status;
}

Status RunWrite(const Arguments& arguments, Console& console)
{
    CloneImage image;
    if (const auto problem = Load(arguments[0], image))
        return Fail(console, *problem);
    const std::string backup = arguments.Value("--backup");
    if (const auto problem = BackupObstacle(backup))
        return Fail(console, {problem->text, problem->details, NothingWritten()});
    const TransferScope scope = ScopeOf(arguments);
    ReceiverSession session(arguments, console);
    Status status = Status::Done;
    if (!backup.empty())
        status = KeepBackup(image, scope, backup, session, console);
    if (status == Status::Done)
        status = Write(image, scope, session, console);
    if (status == Status::Done && arguments.Has("--verify"))
        status = CompareWithReceiver(image, scope, session, console, NotVerified());
    return status;
}

}  // namespace rqm5
