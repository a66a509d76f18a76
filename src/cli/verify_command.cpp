#include <ostream>

#include "cli/channel_output.h"
#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/receiver_session.h"
#include "cli/text_table.h"
#include "cli/values.h"
#include "link/byte_names.h"
#include "link/closing_notes.h"
#include "link/forwarding_observer.h"
#include "link/receiver_checks.h"

namespace rqm5 {
namespace {

/// The whole block as a write would leave it: what the write does not touch is the receiver's own.
std::string ExpectedIn(const ExpectedBlock& block, const MemoryBlock& read)
{
    MemoryBlock expected = block.contents;
    for (int i = 0; i < kBlockBytes; ++i)
        if (read.HasByte(i)) {
            const int mask = block.mask.Byte(i);
            expected.SetByte(i, (block.contents.Byte(i) & mask) | (read.Byte(i) & ~mask));
        }
    return expected.String();
}

TextTable TableOf(const std::vector<BlockDifference>& differences, Form form)
{
    TextTable table;
    const bool isTabbed = form == Form::Tabbed;
    if (isTabbed)
        table.AddRow({"Address", "Block", "Expected", "Receiver", "Bytes"});
    for (const auto& [block, read] : differences)
        table.AddRow({HexAddress(block.address), block.label.English(),
                      (isTabbed ? "" : "expected ") + ExpectedIn(block, read),
                      (isTabbed ? "" : "receiver ") + read.String(), DifferingBytes(block, read)});
    return table;
}

void WriteJson(const std::vector<BlockDifference>& differences, bool isComplete, Console& console)
{
    JsonWriter json(console.out);
    json.Open('{');
    json.Member("complete", isComplete);
    json.Key("differences").Open('[');
    for (const auto& [block, read] : differences) {
        json.Open('{');
        json.Member("address", HexAddress(block.address));
        json.Member("block", block.label.English());
        json.Member("expected", ExpectedIn(block, read));
        json.Member("receiver", read.String());
        json.Member("bytes", DifferingBytes(block, read));
        json.Close('}');
    }
    json.Close(']');
    json.Close('}');
    console.out << '\n';
}

}  // namespace

Status CompareWithReceiver(const std::vector<ExpectedBlock>& expected, ReceiverSession& session,
                           Console& console, const Message& aftermath, Form form, int* found)
{
    session.Observer().Begin(static_cast<int>(expected.size()));
    std::vector<BlockDifference> differences;
    AftermathObserver observer(session.Observer(), aftermath);
    const TransferResult result = ReadBack(expected, session.Link(), observer, differences);
    const Status status = session.Finish(result);
    if (result == TransferResult::Cancelled && !aftermath.empty())
        Say(console, aftermath);
    if (form == Form::Json)
        WriteJson(differences, result == TransferResult::Done, console);
    else
        Print(TableOf(differences, form), form, console);
    if (found != nullptr)
        *found = static_cast<int>(differences.size());
    return differences.empty() || status == Status::Interrupted ? status : Status::Failed;
}

Status RunVerify(const Arguments& arguments, Console& console)
{
    CloneImage image;
    if (const auto problem = Load(arguments[0], image))
        return Fail(console, *problem);
    ReceiverSession session(arguments, console);
    session.TellPort();
    int found = 0;
    const std::vector<ExpectedBlock> expected = ExpectedInReceiver(image, ScopeOf(arguments));
    const Status status = CompareWithReceiver(expected, session, console, {}, FormOf(arguments), &found);
    if (status == Status::Done || found > 0)
        session.Close(ComparedNote(session.Taken(), found));
    return status;
}

}  // namespace rqm5
