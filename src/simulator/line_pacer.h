#pragma once

#include <chrono>
#include <deque>
#include <optional>
#include <string>

#include "simulator/simulated_receiver.h"

namespace rqm5 {

/// The pace of a serial line: when the characters of an answer have arrived at the other end.
///
/// A character takes ten bits. The echo runs alongside the command's own characters; the reply follows
/// when the command is complete. Characters are handed over in groups, as the buffer of a serial
/// interface does, each when its last character is there.
class LinePacer
{
  public:
    using Clock = std::chrono::steady_clock;

    /// \param baud  bits a second; 0 for a line that takes no time
    explicit LinePacer(int baud);

    /// Takes an answer to a line whose characters began to come in at a time.
    void Add(const Answer& answer, Clock::time_point start);

    /// When the next characters are due; nothing when none are left.
    std::optional<Clock::time_point> NextDue() const;

    /// All characters that are due at a time, which are then forgotten.
    std::string TakeDue(Clock::time_point now);

    /// When the last answer's reply is out.
    Clock::time_point LineFree() const { return lineFree_; }

    /// Forgets what was not yet handed over.
    void Clear() { groups_.clear(); }

  private:
    struct Group
    {
        Clock::time_point due;
        std::string text;
    };

    void AddGroups(const std::string& text, Clock::time_point start);

    std::chrono::nanoseconds characterTime_;
    std::deque<Group> groups_;
    Clock::time_point lineFree_{};
};

}  // namespace rqm5
