#include <ostream>

#include "cli/command.h"
#include "cli/receiver_session.h"
#include "cli/text_table.h"
#include "cli/values.h"
#include "link/block_address.h"
#include "link/link_problems.h"
#include "link/memory_map.h"
#include "link/raw_read.h"

namespace rqm5 {
namespace {

TransferResult Refuse(ReceiverSession& session, int address, const RawReply& raw)
{
    if (session.Observer().IsCancelled())
        return TransferResult::Cancelled;
    session.Observer().Message(IsPortFailure(raw.outcome)
                                   ? ComPortProblem(session.Link().Port())
                                   : CommunicationProblem(address, false, 1, raw.outcome));
    return TransferResult::Failed;
}

void AddMeaning(int address, const MemoryBlock& block, TextTable& table)
{
    // How the receiver divides its banks is not known here, so a row is called by its number alone.
    const int row = MemoryRowAt(address);
    const std::string name =
        row >= 0 ? "memory row " + std::to_string(row) : BlockName({}, address).English();
    if (!name.empty())
        table.AddRow({"Meaning", name});
    const std::vector<BlockField> fields = BlockFields(address, block);
    if (fields.empty() && HoldsFields(address))
        table.AddRow({"", "empty"});
    for (const BlockField& field : fields)
        table.AddRow({"  " + field.name.English(), field.text.English()});
}

}  // namespace

Status RunRaw(const Arguments& arguments, Console& console)
{
    const int address = ReadBlockAddress(arguments[0]).value_or(0);
    ReceiverSession session(arguments, console);
    session.Observer().Begin(1);
    const RawReply raw = ReadRaw(session.Link(), address);
    const Status status =
        session.Finish(raw.IsFrame() ? TransferResult::Done : Refuse(session, address, raw));
    TextTable table;
    if (!raw.received.empty())
        table.AddRow({"Reply", raw.received});
    if (raw.IsFrame()) {
        table.AddRow({"Block " + HexAddress(address), raw.block.String()});
        AddMeaning(address, raw.block, table);
    }
    table.Print(console.out);
    return status;
}

}  // namespace rqm5
