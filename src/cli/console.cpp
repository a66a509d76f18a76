#include "cli/console.h"

#include <ostream>

#include "image/display_text.h"

namespace rqm5 {

void Report(Console& console, const Problem& problem)
{
    console.err << Painted(VisibleText(problem.text), Paint::Red, console.paintsErr) << ": "
                << VisibleText(problem.details);
    if (!problem.aftermath.empty())
        console.err << (problem.details.ends_with('.') ? " " : ". ") << VisibleText(problem.aftermath);
    console.err << '\n';
}

Status Fail(Console& console, const Problem& problem)
{
    Report(console, problem);
    return Status::Failed;
}

void TellEnd(Console& console, std::string_view text)
{
    if (console.progressColumns > 0 && !console.isQuiet)
        console.err << VisibleText(text) << '\n';
}

void Warn(Console& console, std::string_view text, const std::vector<std::string>& rows)
{
    console.err << Painted("Warning:", Paint::Yellow, console.paintsErr) << ' ' << VisibleText(text) << '\n';
    for (const std::string& row : rows)
        console.err << "  " << VisibleText(row) << '\n';
}

}  // namespace rqm5
