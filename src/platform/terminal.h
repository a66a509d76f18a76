#pragma once

#include <string>

namespace rqm5 {

enum class StandardStream { Out, Error };

bool IsTerminal(StandardStream stream);

/// Columns of the terminal that a stream goes to; 0 when it does not tell.
int TerminalColumns(StandardStream stream);

/// True for what is read as it comes: pipes, terminals and what else is a device of characters.
bool IsReadAsItComes(const std::string& path);

/// Lets standard input and output carry bytes as they are: files have their own line ends, and texts are
/// UTF-8.
void LeaveBytesAsTheyAre();

}  // namespace rqm5
