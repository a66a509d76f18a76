#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "cli/console.h"
#include "link/transfer_observer.h"

namespace rqm5 {

/// "[#####.....]  50 %  row 605  0:24 left", at most this many columns wide.
///
/// \param row   the row being transferred, -1 for none
/// \param left  nothing as long as it cannot be told
std::string ProgressLine(int done, int total, int row, std::optional<std::chrono::seconds> left, int columns);

/// What a transfer tells a user at a terminal: one line on err that is rewritten as blocks go by, and
/// messages.
class ProgressBar : public TransferObserver
{
  public:
    explicit ProgressBar(Console& console) : console_(console) {}

    /// Another transfer begins: so many blocks, more or less.
    void Begin(int expectedBlocks);

    /// Names the port in every message from now on: "COM 5", and the device behind it.
    void NamePort(const std::string& name, const std::string& device)
    {
        portName_ = name;
        portDevice_ = device;
    }

    /// How many blocks needed more than one attempt.
    int Repeated() const { return repeated_; }

    void Cancel() { isCancelled_ = true; }

    /// No progress is shown.
    void BeQuiet() { isQuiet_ = true; }

    /// Takes the line off the terminal.
    void Clear();

    void ProgressStarted(int maximum) override { maximum_ = maximum; }
    void ProgressMoved(int value, int row) override;
    void BlockDone(int address, bool written) override;
    void BlockRepeated(int /*address*/) override { ++repeated_; }
    void Message(const Problem& problem) override;
    bool IsCancelled() override { return isCancelled_; }

  private:
    using Clock = std::chrono::steady_clock;

    std::optional<std::chrono::seconds> TimeLeft() const;
    void Draw();

    Console& console_;
    std::string portName_;  ///< empty when messages need not name it
    std::string portDevice_;
    int total_ = 0;
    int done_ = 0;
    int repeated_ = 0;
    int maximum_ = 0;
    int row_ = -1;
    int drawnColumns_ = 0;
    bool isCancelled_ = false;
    bool isQuiet_ = false;
    Clock::time_point first_;  ///< when the first block was done; opening a port takes its own time
    Clock::time_point drawn_;
};

}  // namespace rqm5
