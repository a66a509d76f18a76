#pragma once

#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace rqm5 {

/// What a receiver, its cable or its adapter may do wrong with one command.
enum class FaultKind {
    None,
    NoEcho,  ///< the command is not echoed
    Drop,    ///< obeyed and echoed, but the reply is lost
    Cut,     ///< the reply ends in the middle
    Garble,  ///< the reply is not bracketed by line ends
    Ng,      ///< refused: "NG" in place of "OK" or of a frame
    Pieces,  ///< the reply comes in pieces, with pauses
    Late,    ///< the reply comes after the time-out; commands that come in between are not heard
    Stall,   ///< stops for a while, but keeps what comes in meanwhile and answers all of it in order
    Flip,    ///< a digit of a block that is read comes as another digit
    Smear,   ///< it comes as a character that is no digit
    Noise,   ///< random characters before the reply
    HangUp,  ///< the line goes, as when the adapter is pulled out
    Silent,  ///< not heard at all: no echo, no reply, nothing obeyed
};

/// A fault and when it happens: to so many commands, or to each with a probability.
struct Fault
{
    FaultKind kind = FaultKind::None;
    int count = 1;
    double probability = 0;  ///< 0 to 1; when it is not 0 it replaces the count
    int after = 0;           ///< the first so many commands go well
};

/// Reads KIND[:COUNT|:PROBABILITY][:after=N]: "drop", "ng:3", "noise:0.1", "noise:10%", "cut:2:after=100".
/// \return nothing when the text is not of that form
std::optional<Fault> ParseFault(std::string_view text);

/// The kinds as ParseFault knows them, separated by commas.
std::string FaultKinds();

/// Decides which fault each command meets. The same faults and seed give the same decisions.
class FaultPlan
{
  public:
    explicit FaultPlan(std::vector<Fault> faults = {}, unsigned seed = 1)
        : faults_(std::move(faults)), random_(seed)
    {
    }

    /// The fault that the next command meets: the first of the list whose turn it is.
    FaultKind Next();

    /// A random number 0 to below - 1, from the same source.
    int Random(int below);

  private:
    bool Strikes(Fault& fault);

    std::vector<Fault> faults_;
    std::mt19937 random_;
    int commands_ = 0;
};

}  // namespace rqm5
