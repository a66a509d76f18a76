#include "memory/refusal_prompt.h"

#include <QCoreApplication>

namespace rqm5 {
namespace {

struct Refusal
{
    Verdict verdict;
    const char* title;
    const char* text;
};

constexpr Refusal kRefusals[] = {
    {Verdict::Cellular, QT_TRANSLATE_NOOP("rqm5::dlgModify", "Frequency of the cellular phone"),
     QT_TRANSLATE_NOOP("rqm5::dlgModify",
                       "It is a frequency of the cellular phone.\nIt is not possible to set it.")},
    {Verdict::Duplicate, QT_TRANSLATE_NOOP("rqm5::dlgModify", "ERROR"),
     QT_TRANSLATE_NOOP("rqm5::dlgModify",
                       "The same frequency as other channels cannot be set in Search Pass bank.")},
};

QString Translated(const char* text)
{
    return QCoreApplication::translate("rqm5::dlgModify", text);
}

}  // namespace

bool ShowRefusal(Verdict verdict, Dialogs& dialogs, QWidget& parent)
{
    for (const Refusal& refusal : kRefusals)
        if (refusal.verdict == verdict) {
            dialogs.Ask(&parent, {.title = Translated(refusal.title), .text = Translated(refusal.text)});
            return true;
        }
    return false;
}

}  // namespace rqm5
