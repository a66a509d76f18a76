#pragma once

#include <iosfwd>
#include <vector>

#include "cli/paint.h"
#include "image/problem.h"
#include "language/message.h"

namespace rqm5 {

/// How a command ended; the number is the exit status of the program.
enum class Status {
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
    Interrupted = 130,  ///< by Ctrl+C, as shells count it
};

/// Where a command writes to.
struct Console
{
    std::ostream& out;
    std::ostream& err;
    int progressColumns = 0;  ///< width of the terminal behind err; 0 when it is none, so no progress bar
    bool paintsOut = false;   ///< out takes colours
    bool paintsErr = false;
    bool isQuiet = false;    ///< only what was asked for and what is wrong
    bool isVerbose = false;  ///< every exchange with the receiver, every warning
};

/// One line on err: the fixed text, which scripts look for, a colon, and the details in the user's language,
/// all of it as visible characters.
void Report(Console& console, const Problem& problem);

/// Reports the problem and is the status of a failed command.
Status Fail(Console& console, const Problem& problem);

/// One line on err at the end of long work, for who waits at a terminal.
void TellEnd(Console& console, const Message& text);

/// "Warning: ..." on err, for what does not fail the command; each of the rows on a line below.
void Warn(Console& console, const Message& text, const std::vector<Message>& rows);

/// One line on err in the user's language.
void Say(Console& console, const Message& text);

/// Each of the rows on a line of its own on err.
void List(Console& console, const std::vector<Message>& rows);

}  // namespace rqm5
