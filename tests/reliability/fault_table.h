#pragma once

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>
#include <vector>

#include "link/reply_outcome.h"
#include "simulator/fault_plan.h"

namespace rqm5 {

/// What a fault leads to that strikes ten times in a row in the middle of an operation.
struct FaultCase
{
    const char* text;
    const char* readMessage;  ///< a part of the details; nullptr: the operation succeeds
    const char* writeMessage;
    bool isObeyed;     ///< the receiver keeps the block whose write failed
    ReplyOutcome raw;  ///< of a single read
    bool isHeard;      ///< what comes back to a read differs from what came without the fault

    bool TakesTheLine() const { return raw == ReplyOutcome::PortFailed; }
    bool TimesOut() const { return raw == ReplyOutcome::TooShort || raw == ReplyOutcome::Nothing; }

    /// As a part of the name of a test.
    std::string Name() const
    {
        std::string name = *text != '\0' ? text : "none";
        std::erase(name, '-');
        name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
        return name;
    }

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
    {"", nullptr, nullptr, true, ReplyOutcome::Good, false},  // no fault
    {"no-echo", nullptr, "too short", true, ReplyOutcome::Good, true},
    {"drop", "too short", "too short", true, ReplyOutcome::TooShort, true},
    {"cut", "too short", "too short", true, ReplyOutcome::TooShort, true},
    {"garble", "garbled", "garbled", true, ReplyOutcome::Garbled, true},
    {"ng", "too short", "did not answer OK", false, ReplyOutcome::TooShort, true},
    {"pieces", nullptr, nullptr, true, ReplyOutcome::Good, false},
    {"noise", nullptr, nullptr, true, ReplyOutcome::Good, true},
    {"hang-up", "device", "device", false, ReplyOutcome::PortFailed, true},
    {"silent", "sent nothing", "sent nothing", false, ReplyOutcome::Nothing, true},
};

inline const FaultCase& FaultNamed(std::string_view text)
{
    return *std::ranges::find(kFaults, text, &FaultCase::text);
}

}  // namespace rqm5
