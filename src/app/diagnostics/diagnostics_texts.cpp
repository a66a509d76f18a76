#include "app/diagnostics/diagnostics_texts.h"

#include <QString>
#include <vector>

#include "image/display_text.h"
#include "link/commands.h"
#include "link/link_problems.h"
#include "link/memory_map.h"

namespace rqm5 {
namespace {

Message Milliseconds(std::chrono::microseconds time)
{
    return QString::number(static_cast<double>(time.count()) / 1000.0, 'f', 1).toStdString();
}

Message PortFailureText(const SerialPort& port)
{
    return Message(MESSAGE("%1: %2"), {kComPortError, ComPortProblem(port).details});
}

Message Title(const CloneImage& image, int address)
{
    const Message number = HexAddress(address);
    const Message name = BlockName(image, address);
    return name.empty() ? number : Message(MESSAGE("%1: %2"), {number, name});
}

/// The receiver's line, or its cable, repeated the command, and nothing followed.
bool IsOnlyEcho(int address, const std::string& received)
{
    const std::string command = ReadCommand(address);
    return received.starts_with(command) &&
           received.find_first_not_of("\r\n", command.size()) == std::string::npos;
}

Message ReceivedLine(int address, const RawReply& reply)
{
    const bool isAnswered = !reply.received.empty() && !IsOnlyEcho(address, reply.received);
    const Message received =
        reply.received.empty() ? Message(MESSAGE("(nothing)")) : Message(VisibleText(reply.received));
    return {isAnswered ? MESSAGE("Reply after %1 ms: %2")
                       : MESSAGE("Received until the time-out after %1 ms: %2"),
            {Milliseconds(reply.took), received}};
}

Message WhyNoFrame(int address, const RawReply& reply)
{
    if (reply.received.empty())
        return MESSAGE("Nothing came back. Check the cable, the port, and that the receiver is on.");
    if (IsOnlyEcho(address, reply.received))
        return MESSAGE("The receiver did not answer: only the echo of the command came back.");
    return reply.outcome == ReplyOutcome::TooShort
               ? MESSAGE("The reply is too short: a whole one ends with 36 characters.")
               : MESSAGE("The reply is garbled: it does not end with a line of 32 characters.");
}

/// \param lines  where the meaning of the block is added, a line a field
void AddMeaning(int address, const RawReply& reply, std::vector<Message>& lines)
{
    if (!HoldsFields(address))
        return;
    const auto fields = BlockFields(address, reply.block);
    if (fields.empty())
        lines.emplace_back(MESSAGE("An empty row."));
    for (const BlockField& field : fields)
        lines.push_back(Message(MESSAGE("%1: %2"), {field.name, field.text}));
}

}  // namespace

Message RawReplyText(const CloneImage& image, int address, const RawReply& reply, const SerialPort& port)
{
    std::vector<Message> lines = {Title(image, address)};
    if (IsPortFailure(reply.outcome)) {
        lines.push_back(PortFailureText(port));
        return Message::List(lines, "\n");
    }
    lines.push_back(ReceivedLine(address, reply));
    if (reply.IsFrame())
        AddMeaning(address, reply, lines);
    else
        lines.push_back(WhyNoFrame(address, reply));
    return Message::List(lines, "\n");
}

Message LinkTestText(const LinkTestResult& result, const SerialPort& port)
{
    Message text(MESSAGE("%1 reads, %2 errors."), {result.reads, result.errors});
    if (result.reads != result.errors) {
        const Message times(
            MESSAGE("Round trip: lowest %1 ms, median %2 ms, highest %3 ms."),
            {Milliseconds(result.lowest), Milliseconds(result.median), Milliseconds(result.highest)});
        text = Message::List({text, times}, " ");
    }
    return result.hasPortFailed ? Message::List({PortFailureText(port), text}, "\n") : text;
}

}  // namespace rqm5
