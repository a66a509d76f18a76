#pragma once

#include <string>
#include <vector>

#include "link/raw_read.h"
#include "simulator/fault_plan.h"

namespace rqm5 {

/// What a fault leads to that strikes ten times in a row in the middle of an operation.
struct FaultCase
{
    const char* text;
    const char* readMessage;  ///< a part of the details; nullptr: the operation succeeds
    const char* writeMessage;
    bool isObeyed;         ///< the receiver keeps the block whose write failed
    RawReply::Result raw;  ///< of a single read

    bool TakesTheLine() const { return raw == RawReply::Result::PortFailed; }

    /// After so many commands it strikes ten times in a row, or once when it takes the line away.
    std::vector<Fault> Faults(int after) const
    {
        if (*text == '\0')
            return {};
        const std::string times = TakesTheLine() ? ":1" : ":10";
        return {ParseFault(text + times + ":after=" + std::to_string(after)).value()};
    }
};

/// Every fault whose end is certain; how a late reply ends depends on moments.
inline constexpr FaultCase kFaults[] = {
    {"", nullptr, nullptr, true, RawReply::Result::Frame},  // no fault
    {"no-echo", nullptr, "too short", true, RawReply::Result::Frame},
    {"drop", "too short", "too short", true, RawReply::Result::TooShort},
    {"cut", "too short", "too short", true, RawReply::Result::TooShort},
    {"garble", "garbled", "garbled", true, RawReply::Result::NoFrame},
    {"ng", "too short", "did not answer OK", false, RawReply::Result::TooShort},
    {"pieces", nullptr, nullptr, true, RawReply::Result::Frame},
    {"noise", nullptr, nullptr, true, RawReply::Result::Frame},
    {"hang-up", "device", "device", false, RawReply::Result::PortFailed},
    {"silent", "sent nothing", "sent nothing", false, RawReply::Result::TooShort},
};

}  // namespace rqm5
