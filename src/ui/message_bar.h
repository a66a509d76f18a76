#pragma once

#include <QFrame>
#include <QString>
#include <functional>
#include <vector>

#include "language/message.h"

class QHBoxLayout;

namespace rqm5 {

class ElidedLabel;

/// `barMessage`: one line of text with buttons at the edge of a window, for what must be seen and can wait.
/// It shows one message at most and never takes the focus. A newer one stands before an older one until it is
/// withdrawn or closed. What stands there follows the language.
class MessageBar : public QFrame
{
    Q_OBJECT

  public:
    struct Button
    {
        Message text;
        std::function<void()> press;
    };

    struct Notice
    {
        QString key;  ///< who speaks; one message each
        Message text;
        std::vector<Button> buttons = {};
    };

    explicit MessageBar(QWidget* parent);

    /// Shows a message in the place of the one of the same key.
    void Show(Notice notice);

    /// Takes a message away; does nothing when there is none.
    void Withdraw(const QString& key);

    bool Has(const QString& key) const;

  signals:
    /// Somebody has read a message and closed it.
    void Closed(const QString& key);

  private:
    void ShowLatest();
    void ShowTexts();
    void Press(std::size_t button);
    void cmbMessageClose_Click();

    std::vector<Notice> messages_;  ///< the latest last
    ElidedLabel* lblMessage_;
    QHBoxLayout* buttons_;  ///< of the latest, in its order
};

}  // namespace rqm5
