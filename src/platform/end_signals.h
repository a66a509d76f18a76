#pragma once

#include <QObject>
#include <functional>
#include <memory>

namespace rqm5 {

/// The exit status of a program that Ctrl-C ended, as shells count it.
inline constexpr int kEndedByCtrlC = 130;

/// While it exists, the first of Ctrl-C, a request to terminate and the end of the terminal calls a function
/// from the event loop in place of ending the program. The next one ends the program as usual.
class EndSignals
{
  public:
    /// Whoever starts a program can tell it to ignore these. One under nohup goes on in any case when its
    /// terminal is closed.
    enum class Ignored { AllStayIgnored, OnlyHangUpStaysIgnored };

    /// \param onEnd  gets to know the exit status of a program that was ended so
    EndSignals(Ignored ignored, std::function<void(int status)> onEnd);

  private:
    std::unique_ptr<QObject> watch_;
};

}  // namespace rqm5
