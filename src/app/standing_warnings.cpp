#include "app/standing_warnings.h"

namespace rqm5 {
namespace {

const QString kMessage = QStringLiteral("warning");

}  // namespace

StandingWarnings::StandingWarnings(StatusBar& statusBar, MessageBar& messageBar)
    : QObject(&statusBar), statusBar_(statusBar), messageBar_(messageBar)
{
}

void StandingWarnings::Set(Kind kind, const QString& text)
{
    QString& shown = texts_[kind];
    if (shown == text)
        return;
    shown = text;
    Show();
}

void StandingWarnings::Show()
{
    QString all;
    for (const auto& [kind, text] : texts_)
        if (!text.isEmpty())
            all += (all.isEmpty() ? QString() : QStringLiteral("  ")) + text;
    statusBar_.ShowWarning(all);
    if (statusBar_.isHidden() && !all.isEmpty())
        messageBar_.Show({kMessage, all});
    else
        messageBar_.Withdraw(kMessage);
}

}  // namespace rqm5
