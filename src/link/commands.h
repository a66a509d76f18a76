#pragma once

#include <string>

#include "image/memory_block.h"

namespace rqm5 {

/// The command that asks for a block: "QT~F" + address + "R" + CR.
std::string ReadCommand(int address);

/// The command that sends a block: "QT~F" + address + "W" + 32 hex digits + CR.
std::string WriteCommand(int address, const MemoryBlock& block);

}  // namespace rqm5
