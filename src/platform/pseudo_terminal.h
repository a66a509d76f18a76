#pragma once

#include <string>

namespace rqm5 {

/// A pseudo-terminal in raw mode: this side is the receiver's, the device is for the other.
class PseudoTerminal
{
  public:
    PseudoTerminal() = default;
    ~PseudoTerminal() { Close(); }
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    /// \return false: Error() says why
    bool Open();

    /// Hangs up: whoever has the device open finds it gone.
    void Close();

    const std::string& Device() const { return device_; }
    const std::string& Error() const { return error_; }

    int Descriptor() const { return master_; }

    /// What has come in; empty when nothing has.
    std::string Read();

    /// Hands characters over. Those that nobody fetches are lost when the system's buffer is full, as on a
    /// real line.
    void Write(const std::string& text);

  private:
    bool Fail();

    int master_ = -1;
    int slave_ = -1;  ///< kept open: without a device side the system reports a hang-up without end
    std::string device_;
    std::string error_;
};

}  // namespace rqm5
