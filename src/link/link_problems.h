#pragma once

#include <QString>

#include "image/problem.h"
#include "link/reply_outcome.h"
#include "link/serial_port.h"

namespace rqm5 {

/// "COM Port Error" with the device, the system's reason and the remedy.
Problem ComPortProblem(const SerialPort& port);

/// "Communication Error" with the block, the number of attempts, what came back to the last
/// attempt and what to check.
Problem CommunicationProblem(int address, bool written, int attempts, ReplyOutcome outcome);

/// What to do about a port that could not be opened or used; also of use where no transfer runs.
Message PortRemedy(const QString& device, PortFault fault);

}  // namespace rqm5
