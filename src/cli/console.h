#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "cli/paint.h"
#include "image/problem.h"

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

/// One line on err: the fixed text, a colon, the details, all of it as visible characters.
void Report(Console& console, const Problem& problem);

/// Reports the problem and is the status of a failed command.
Status Fail(Console& console, const Problem& problem);

/// One line on err at the end of long work, for who waits at a terminal.
void TellEnd(Console& console, std::string_view text);

/// "Warning: ..." on err, for what does not fail the command; each of the rows on a line below.
void Warn(Console& console, std::string_view text, const std::vector<std::string>& rows);

}  // namespace rqm5
