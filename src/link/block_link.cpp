#include "link/block_link.h"

#include <utility>

#include "image/channel_block.h"
#include "link/commands.h"
#include "link/link_problems.h"

namespace rqm5 {

BlockResult BlockLink::Read(int address, MemoryBlock& block)
{
    const std::string command = ReadCommand(address);
    BlockResult read = Repeat(address, false, [&] {
        const std::string reply = link_.SendReadCommand(command);
        const ReplyOutcome outcome = OutcomeOfRead(reply, link_.LastReceived(), HasGone(link_.Port()));
        if (outcome == ReplyOutcome::Good)
            block = BlockOfReply(reply);
        return outcome;
    });
    if (read.result == TransferResult::Done)
        link_.Knowledge().TakeRead(address, block);
    return read;
}

BlockResult BlockLink::Write(int address, const MemoryBlock& block)
{
    const std::string command = WriteCommand(address, block);
    bool isSent = false;
    BlockResult written = Repeat(address, true, [&] {
        // Without a port nothing is sent.
        if (!std::exchange(isSent, true) && (link_.Port().IsOpen() || link_.Port().Open()))
            link_.Knowledge().TakeSending(address, block);
        const int code = link_.SendWriteCommand(command);
        return OutcomeOfWrite(code, link_.LastReceived(), HasGone(link_.Port()));
    });
    if (written.result == TransferResult::Done)
        link_.Knowledge().TakeWritten(address, block);
    return written;
}

template <typename Try>
BlockResult BlockLink::Repeat(int address, bool written, Try attempt)
{
    BlockResult block;
    const bool isLineOpen = link_.MayStillReply();
    do {
        // A cancel comes during an attempt, the pause behind it, or in between.
        if (!observer_.IsCancelled())
            block.outcome = Pause(block.attempts);
        if (observer_.IsCancelled()) {
            block.result = TransferResult::Cancelled;
            return block;
        }
        if (block.outcome != ReplyOutcome::Good)
            break;
        block.outcome = attempt();
        Watch(block.attempts++);
        if (isLineOpen || block.outcome != ReplyOutcome::Good) {
            watch_.Begin();
            link_.Knowledge().BeginDoubt();
        }
    } while (block.outcome != ReplyOutcome::Good && !IsPortFailure(block.outcome) &&
             block.attempts < kAttempts);
    Conclude(address, written, block);
    return block;
}

/// Keeps the silence that an attempt needs before it. \return Good: it may be made
ReplyOutcome BlockLink::Pause(int attempts)
{
    if (attempts == 0 && !link_.MayStillReply())
        return ReplyOutcome::Good;
    const Silence silence = attempts == 0 ? link_.Settle() : link_.Rest();
    watch_.Heard(link_.LastHeard());
    if (silence == Silence::PortFailed)
        return HasGone(link_.Port()) ? ReplyOutcome::PortFailed : ReplyOutcome::NotOpened;
    const bool isRestless = silence == Silence::Broken && attempts == 0;
    return isRestless ? ReplyOutcome::Restless : ReplyOutcome::Good;
}

void BlockLink::Watch(int attempts)
{
    // What was thrown away before the first attempt came in after the previous block, so it counts for that
    // one.
    watch_.Heard(link_.LastDiscarded());
    if (attempts == 0)
        watch_.NextBlock();
    watch_.Sent();
    watch_.Heard(link_.LastReceived());
}

void BlockLink::Conclude(int address, bool written, BlockResult& block)
{
    if (block.outcome == ReplyOutcome::Good) {
        if (block.attempts > 1)
            observer_.BlockRepeated(address);
        observer_.BlockDone(address, written);
    } else if (observer_.IsCancelled()) {
        // A cancel in the last wait looks like a failure from here.
        block.result = TransferResult::Cancelled;
    } else {
        block.result = TransferResult::Failed;
        if (block.outcome == ReplyOutcome::PortFailed)
            link_.Knowledge().Leave();
        block.problem = IsPortFailure(block.outcome)
                            ? ComPortProblem(link_.Port())
                            : CommunicationProblem(address, written, block.attempts, block.outcome);
    }
}

bool BlockLink::HaveRepliesShifted()
{
    if (!watch_.IsWatching())
        return false;
    const Silence silence = link_.Listen();
    watch_.Heard(link_.LastHeard());
    const bool haveShifted = watch_.End();
    const bool isCutShort = silence == Silence::Stopped || silence == Silence::PortFailed;
    link_.Knowledge().EndDoubt(haveShifted || isCutShort);
    return haveShifted;
}

void BlockLink::BeginAnew()
{
    if (watch_.IsWatching())
        link_.Knowledge().EndDoubt(true);
    watch_.End();
}

}  // namespace rqm5
