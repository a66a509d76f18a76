#include "link/block_link.h"

#include <string_view>

#include "image/channel_record.h"
#include "link/commands.h"
#include "link/link_problems.h"

namespace rqm5 {
namespace {

constexpr std::size_t kAnswerLength = 6;

BadReply WhatCameBack(const std::string& received, bool written)
{
    if (received.empty())
        return BadReply::Nothing;
    if (received.size() < (written ? kAcknowledgementLength : kFrameLength))
        return BadReply::TooShort;
    // Another word than "OK" in a whole frame is the receiver's own answer; anything else is the line's.
    const std::string_view end = std::string_view(received).substr(received.size() - kAnswerLength);
    const bool isAnswer = end.starts_with("\r\n") && end.ends_with("\r\n");
    return written && isAnswer ? BadReply::NotOk : BadReply::Garbled;
}

}  // namespace

TransferResult BlockLink::Read(int address, MemoryBlock& block)
{
    const std::string command = ReadCommand(address);
    return Repeat(address, false, [&] { return TryRead(command, block); });
}

TransferResult BlockLink::Write(int address, const MemoryBlock& block)
{
    return WriteTo(address, WriteCommand(address, block));
}

TransferResult BlockLink::WritePrepared(const std::string& command)
{
    return WriteTo(AddressOfCommand(command), command + "\r");
}

TransferResult BlockLink::WriteTo(int address, const std::string& command)
{
    return Repeat(address, true, [&] { return TryWrite(command); });
}

BlockLink::Attempt BlockLink::TryRead(const std::string& command, MemoryBlock& block)
{
    const std::string reply = link_.SendReadCommand(command);
    if (reply == kReadPortFailed)
        return Attempt::PortFailed;
    if (reply == kReadTooShort || reply == kReadNoFrame)
        return Attempt::Bad;
    block = BlockOfReply(reply);
    return Attempt::Good;
}

BlockLink::Attempt BlockLink::TryWrite(const std::string& command)
{
    const int code = link_.SendWriteCommand(command);
    if (code == kWritePortFailed)
        return Attempt::PortFailed;
    return code == kWriteOk ? Attempt::Good : Attempt::Bad;
}

template <typename Try>
TransferResult BlockLink::Repeat(int address, bool written, Try attempt)
{
    Attempt result = Attempt::Bad;
    for (int failures = 0; failures < kAttempts && result == Attempt::Bad; ++failures) {
        if (observer_.IsCancelled())
            return TransferResult::Cancelled;
        result = attempt();
    }
    if (result == Attempt::Good) {
        observer_.BlockDone(address, written);
        return TransferResult::Done;
    }
    // A cancel in the last wait looks like a failure from here.
    return observer_.IsCancelled() ? TransferResult::Cancelled : Fail(address, written, result);
}

TransferResult BlockLink::Fail(int address, bool written, Attempt last)
{
    const bool neverOpened = last == Attempt::PortFailed && link_.Port().Fault() != PortFault::Gone;
    if (neverOpened)
        observer_.BlockUnsent(address, written);
    else
        observer_.BlockFailed(address, written);
    observer_.Message(
        last == Attempt::PortFailed
            ? ComPortProblem(link_.Port())
            : CommunicationProblem(address, written, kAttempts, WhatCameBack(link_.LastReceived(), written)));
    return TransferResult::Failed;
}

}  // namespace rqm5
