#include "cli/console.h"

#include <ostream>

#include "image/display_text.h"
#include "language/translated.h"

namespace rqm5 {
namespace {

std::string VisibleSaid(const Message& text)
{
    return VisibleText(Said(text));
}

Message WithAftermath(const Problem& problem)
{
    if (problem.aftermath.empty())
        return problem.details;
    const std::string details = Said(problem.details);
    if (details.ends_with('.') || details.ends_with("。"))
        return Message::List({problem.details, problem.aftermath}, " ");
    return {MESSAGE("%1. %2"), {problem.details, problem.aftermath}};
}

}  // namespace

void Report(Console& console, const Problem& problem)
{
    console.err << Painted(VisibleText(problem.text), Paint::Red, console.paintsErr) << ": "
                << VisibleSaid(WithAftermath(problem)) << '\n';
}

Status Fail(Console& console, const Problem& problem)
{
    Report(console, problem);
    return Status::Failed;
}

void TellEnd(Console& console, const Message& text)
{
    if (console.progressColumns > 0 && !console.isQuiet)
        Say(console, text);
}

void Warn(Console& console, const Message& text, const std::vector<Message>& rows)
{
    console.err << Painted("Warning:", Paint::Yellow, console.paintsErr) << ' ' << VisibleSaid(text) << '\n';
    List(console, rows);
}

void Say(Console& console, const Message& text)
{
    console.err << VisibleSaid(text) << '\n';
}

void List(Console& console, const std::vector<Message>& rows)
{
    for (const Message& row : rows)
        console.err << "  " << VisibleSaid(row) << '\n';
}

}  // namespace rqm5
