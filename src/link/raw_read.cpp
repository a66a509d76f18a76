#include "link/raw_read.h"

#include <algorithm>
#include <vector>

#include "image/channel_block.h"
#include "link/commands.h"
#include "link/memory_map.h"

namespace rqm5 {

RawReply ReadRaw(RadioLink& link, int address)
{
    RawReply raw;
    // What an earlier command left open must not pass for the reply to this one.
    const Silence silence = link.MayStillReply() ? link.Settle() : Silence::Kept;
    if (silence == Silence::Stopped || silence == Silence::PortFailed) {
        raw.outcome = silence == Silence::Stopped ? ReplyOutcome::Nothing
                      : HasGone(link.Port())      ? ReplyOutcome::PortFailed
                                                  : ReplyOutcome::NotOpened;
        return raw;
    }
    const bool isLineOpen = link.MayStillReply();
    const std::string reply = link.SendReadCommand(ReadCommand(address));
    raw.received = link.LastReceived();
    raw.outcome = OutcomeOfRead(reply, raw.received, HasGone(link.Port()));
    raw.took = link.LastDuration();
    if (raw.IsFrame())
        raw.block = BlockOfReply(reply);
    if (raw.IsFrame() && !isLineOpen && PlaceOf(address))
        link.Knowledge().TakeRead(address, raw.block);
    return raw;
}

LinkTestResult TestLink(RadioLink& link, int address, int count, const std::function<bool(int)>& goesOn)
{
    LinkTestResult result;
    std::vector<std::chrono::microseconds> times;
    while (result.reads < count && !result.hasPortFailed && goesOn(result.reads)) {
        const RawReply raw = ReadRaw(link, address);
        // A read that was stopped in its wait says nothing about the line.
        if (!raw.IsFrame() && !goesOn(result.reads))
            break;
        ++result.reads;
        result.hasPortFailed = IsPortFailure(raw.outcome);
        if (raw.IsFrame())
            times.push_back(raw.took);
        else
            ++result.errors;
    }
    if (!times.empty()) {
        std::sort(times.begin(), times.end());
        result.lowest = times.front();
        result.median = times[times.size() / 2];
        result.highest = times.back();
    }
    return result;
}

}  // namespace rqm5
