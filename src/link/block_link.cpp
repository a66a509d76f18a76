#include "link/block_link.h"

#include "image/channel_block.h"
#include "link/commands.h"
#include "link/link_problems.h"

namespace rqm5 {

BlockResult BlockLink::Read(int address, MemoryBlock& block)
{
    const std::string command = ReadCommand(address);
    return Repeat(address, false, [&] {
        const std::string reply = link_.SendReadCommand(command);
        const ReplyOutcome outcome = OutcomeOfRead(reply, link_.LastReceived(), HasGone(link_.Port()));
        if (outcome == ReplyOutcome::Good)
            block = BlockOfReply(reply);
        return outcome;
    });
}

BlockResult BlockLink::Write(int address, const MemoryBlock& block)
{
    const std::string command = WriteCommand(address, block);
    return Repeat(address, true, [&] {
        const int code = link_.SendWriteCommand(command);
        return OutcomeOfWrite(code, link_.LastReceived(), HasGone(link_.Port()));
    });
}

template <typename Try>
BlockResult BlockLink::Repeat(int address, bool written, Try attempt)
{
    BlockResult block;
    do {
        if (observer_.IsCancelled()) {
            block.result = TransferResult::Cancelled;
            return block;
        }
        block.outcome = attempt();
        ++block.attempts;
    } while (block.outcome != ReplyOutcome::Good && !IsPortFailure(block.outcome) &&
             block.attempts < kAttempts);
    if (block.outcome == ReplyOutcome::Good) {
        observer_.BlockDone(address, written);
    } else if (observer_.IsCancelled()) {
        // A cancel in the last wait looks like a failure from here.
        block.result = TransferResult::Cancelled;
    } else {
        block.result = TransferResult::Failed;
        block.problem = IsPortFailure(block.outcome)
                            ? ComPortProblem(link_.Port())
                            : CommunicationProblem(address, written, block.attempts, block.outcome);
    }
    return block;
}

}  // namespace rqm5
