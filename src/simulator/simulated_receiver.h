#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/fault_plan.h"
#include "simulator/receiver_memory.h"

namespace rqm5 {

/// A part of a reply, after a pause on the line.
struct ReplyPiece
{
    std::chrono::milliseconds pause{0};
    std::string text;
};

/// What a receiver does about one line that it received.
struct Answer
{
    std::string command;  ///< without its CR; empty when the line held none
    std::size_t length;   ///< characters received, with everything before the command and the CR
    std::string echo;     ///< runs alongside the characters that come in
    std::vector<ReplyPiece> reply;
    std::chrono::microseconds stall{0};  ///< before all of it
    bool isDeaf = false;                 ///< hears nothing before its reply is out
    bool hangsUp = false;
};

/// The receiver in its clone mode: a memory, and what it answers. Knows no line and no time.
///
/// Anything that is no command is echoed and otherwise passed over up to the next CR, or up to the "QT~F"
/// with which a command begins.
class SimulatedReceiver
{
  public:
    explicit SimulatedReceiver(ReceiverMemory memory, FaultPlan faults = FaultPlan())
        : memory_(std::move(memory)), faults_(std::move(faults))
    {
    }

    /// Takes characters as they come in, in pieces of any size. \return the answers to the lines that they
    /// complete, in order
    std::vector<Answer> Receive(std::string_view characters);

    const ReceiverMemory& Memory() const { return memory_; }
    void SetMemory(const ReceiverMemory& memory) { memory_ = memory; }
    void SetFaults(FaultPlan faults) { faults_ = std::move(faults); }
    void SetLateDelay(std::chrono::milliseconds delay) { lateDelay_ = delay; }
    void SetStallTime(std::chrono::microseconds time) { stallTime_ = time; }

  private:
    Answer AnswerTo(std::string line);
    std::string Obey(const std::string& command, bool refuses);
    void Spoil(FaultKind fault, Answer& answer);
    void SpoilDigit(std::string& frame, bool isLost);
    std::string Noise();

    ReceiverMemory memory_;
    FaultPlan faults_;
    std::chrono::milliseconds lateDelay_{600};
    std::chrono::microseconds stallTime_{std::chrono::milliseconds(700)};
    std::string pending_;
};

}  // namespace rqm5
