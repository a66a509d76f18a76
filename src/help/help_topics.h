#pragma once

#include <QString>
#include <QStringList>

namespace rqm5 {

/// The page of the manual, with an anchor where there is a closer one, for a control: "settings.md",
/// "channels-and-banks.md#the-bank-page".
///
/// \param names  objectName of the control, then of everything that holds it, up to its window
QString HelpTopic(const QStringList& names);

/// The place in the page of messages that explains a message box of this English text: its first sentence is
/// the heading there.
QString MessageTopic(const QString& text);

/// Every page and anchor that HelpTopic can answer with.
QStringList HelpTopics();

}  // namespace rqm5
