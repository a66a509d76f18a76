#pragma once

#include <string>

#include "image/problem.h"
#include "link/serial_port.h"

namespace rqm5 {

/// "COM Port Error" with the device, the system's reason and the remedy.
Problem ComPortProblem(const SerialPort& port);

/// What came back to the last attempt at a block.
enum class BadReply { Nothing, TooShort, Garbled, NotOk };

/// "Communication Error" with the block, the number of attempts, what came back and what to check.
Problem CommunicationProblem(int address, bool written, int attempts, BadReply reply);

/// What to do about a port that could not be opened or used; also of use where no transfer runs.
QString PortRemedy(const QString& device, PortFault fault);

}  // namespace rqm5
