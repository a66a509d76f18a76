#include "ui/error_prompt.h"

#include "language/translated.h"

namespace rqm5 {

namespace {

// The fixed texts are made where no window is known; here is where a translation finds them.
[[maybe_unused]] constexpr const char* kProblemTexts[] = {
    MESSAGE("COM Port Error"),
    MESSAGE("Communication Error"),
    MESSAGE("Data Error"),
    MESSAGE("File Open Error"),
};

}  // namespace

Prompt ErrorPrompt(const Problem& problem)
{
    Prompt prompt;
    prompt.title = Translated(MESSAGE("ERROR"));
    prompt.text = Translated(problem.text.c_str());
    prompt.details = Translated(problem.details);
    prompt.command = QString::fromStdString(problem.command);
    if (!problem.aftermath.empty())
        prompt.details += QStringLiteral("\n\n") + Translated(problem.aftermath);
    return prompt;
}

}  // namespace rqm5
