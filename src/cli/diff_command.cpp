#include <ostream>

#include "cli/channel_output.h"
#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/diff_json.h"
#include "cli/receiver_session.h"
#include "cli/values.h"
#include "image/display_text.h"
#include "link/line_notes.h"
#include "link/receiver_checks.h"
#include "link/receiver_reader.h"
#include "memory/change_words.h"

namespace rqm5 {
namespace {

/// The receiver has no notes, so those of rows that it holds stay as they are in the file.
Status ReadReceiver(const Arguments& arguments, CloneImage& image, Console& console)
{
    const TransferScope scope = ScopeOf(arguments);
    ReceiverSession session(arguments, console);
    session.TellPort();
    session.Observer().Begin(BlocksToBackUp(image, scope));
    const CloneImage file = image;
    ReceiverReader reader(image, session.Link(), session.Observer());
    Status status = session.Finish(reader.Read(scope));
    for (int row = 0; row < kMemoryRows; ++row)
        image.MemData(row).note = file.MemData(row).note;
    for (int row = 0; row < kVfoRows; ++row)
        image.VFOData(row).note = file.VFOData(row).note;
    if (const std::vector<Message> unreadable = reader.Unreadable();
        status == Status::Done && !unreadable.empty()) {
        Report(console, {kCommunicationError,
                         {MESSAGE("%1:"), {UnreadableNote(static_cast<int>(unreadable.size()))}}});
        List(console, unreadable);
        status = Status::Failed;
    }
    return status;
}

}  // namespace

Message DiffFault(const Arguments& arguments)
{
    const std::size_t files = arguments.Operands().size();
    if (arguments.Has("--port"))
        return files == 1 ? ScopeConflict(arguments)
                          : MESSAGE("--port compares one file with the receiver; leave B out");
    for (const char* option : {"--only", "--bank"})
        if (arguments.Has(option))
            return {MESSAGE("%1 is about what is read from the receiver; add --port"), {std::string(option)}};
    return files == 1 ? MESSAGE("B is missing; --port P compares with the receiver") : Message();
}

Status RunDiff(const Arguments& arguments, Console& console)
{
    CloneImage a;
    CloneImage b;
    auto problem = Load(arguments[0], a);
    if (!problem && !arguments.Has("--port"))
        problem = Load(arguments[1], b);
    if (problem)
        return Fail(console, *problem);
    if (arguments.Has("--port")) {
        b = a;
        if (const Status status = ReadReceiver(arguments, b, console); status != Status::Done)
            return status;
    }
    const ImageChange change = Difference(a, b);
    const std::vector<Message> differences = DescribeChange(a, change);
    if (arguments.Has("--json"))
        WriteChange(a, b, change, console.out);
    else
        for (const Message& difference : differences)
            console.out << VisibleText(difference.English()) << '\n';
    return differences.empty() ? Status::Done : Status::Failed;
}

}  // namespace rqm5
