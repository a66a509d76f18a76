#include "ui/error_prompt.h"

#include <QCoreApplication>

namespace rqm5 {

namespace {

// The fixed texts are made where no window is known; here is where a translation finds them.
[[maybe_unused]] constexpr const char* kProblemTexts[] = {
    QT_TRANSLATE_NOOP("Problem", "COM Port Error"),
    QT_TRANSLATE_NOOP("Problem", "Communication Error"),
    QT_TRANSLATE_NOOP("Problem", "Data Error"),
    QT_TRANSLATE_NOOP("Problem", "File Open Error"),
};

}  // namespace

Prompt ErrorPrompt(const Problem& problem)
{
    Prompt prompt;
    prompt.title = QCoreApplication::translate("Problem", "ERROR");
    prompt.text = QCoreApplication::translate("Problem", problem.text.c_str());
    prompt.details = QString::fromStdString(problem.details);
    prompt.command = QString::fromStdString(problem.command);
    if (!problem.aftermath.empty())
        prompt.details += QStringLiteral("\n\n") + QString::fromStdString(problem.aftermath);
    return prompt;
}

}  // namespace rqm5
