#pragma once

#include <string>

#include "link/expected_memory.h"

namespace rqm5 {

/// What differs in a block that was read, byte by byte in words:
/// "byte 8 (Keylock, Beep), bytes 12 to 15 (Shift frequency)". Empty when the block agrees.
std::string DifferingBytes(const ExpectedBlock& expected, const MemoryBlock& read);

}  // namespace rqm5
