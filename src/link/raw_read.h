#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "image/memory_block.h"
#include "link/radio_link.h"
#include "link/reply_outcome.h"

namespace rqm5 {

/// What one read command led to.
struct RawReply
{
    ReplyOutcome outcome = ReplyOutcome::NotOpened;
    std::string received;  ///< everything that came back, echo included
    MemoryBlock block;     ///< of a frame: its 32 characters as they came
    std::chrono::microseconds took{0};

    bool IsFrame() const { return outcome == ReplyOutcome::Good; }
};

/// Sends one read command, once, and waits for its reply: at most 500 ms.
RawReply ReadRaw(RadioLink& link, int address);

/// Round trips of a link test. The times are those of the good replies; 0 when there was none.
struct LinkTestResult
{
    int reads = 0;
    int errors = 0;
    bool hasPortFailed = false;  ///< the test ended with this read
    std::chrono::microseconds lowest{0};
    std::chrono::microseconds median{0};
    std::chrono::microseconds highest{0};
};

/// Reads one block again and again, without repeating a failed read. Ends early when the port fails, or
/// when goesOn, which is asked before each read with the number of reads done, says false.
LinkTestResult TestLink(RadioLink& link, int address, int count, const std::function<bool(int)>& goesOn);

}  // namespace rqm5
