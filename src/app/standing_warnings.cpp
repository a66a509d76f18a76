#include "app/standing_warnings.h"

namespace rqm5 {
namespace {

const QString kMessage = QStringLiteral("warning");

}  // namespace

StandingWarnings::StandingWarnings(StatusBar& statusBar, MessageBar& messageBar)
    : QObject(&statusBar), statusBar_(statusBar), messageBar_(messageBar)
{
}

void StandingWarnings::Set(Kind kind, const Message& text)
{
    Message& shown = texts_[kind];
    if (shown == text)
        return;
    shown = text;
    Show();
}

void StandingWarnings::Show()
{
    std::vector<Message> standing;
    for (const auto& [kind, text] : texts_)
        if (!text.empty())
            standing.push_back(text);
    const Message all = standing.empty() ? Message() : Message::List(standing, "  ");
    statusBar_.ShowWarning(all);
    if (statusBar_.isHidden() && !all.empty())
        messageBar_.Show({kMessage, all});
    else
        messageBar_.Withdraw(kMessage);
}

}  // namespace rqm5
