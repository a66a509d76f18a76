#pragma once

#include <QObject>
#include <map>

#include "app/status_bar.h"
#include "ui/message_bar.h"

namespace rqm5 {

/// What stays true until it is taken back. It stands in the status bar, and in the message bar while that one
/// is hidden.
class StandingWarnings : public QObject
{
    Q_OBJECT

  public:
    /// In the order of their weight.
    enum class Kind { NotKept, Notes };

    StandingWarnings(StatusBar& statusBar, MessageBar& messageBar);

    /// An empty text takes a warning back.
    void Set(Kind kind, const Message& text);

    /// The status bar was shown or hidden.
    void Show();

  private:
    StatusBar& statusBar_;
    MessageBar& messageBar_;
    std::map<Kind, Message> texts_;
};

}  // namespace rqm5
