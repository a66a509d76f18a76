#pragma once

#include <QToolButton>

#include "language/message.h"

namespace rqm5 {

/// A small arrow that folds away what stands at its right, and brings it back. It remembers, from run to run,
/// which of the two it was.
class FoldButton : public QToolButton
{
    Q_OBJECT

  public:
    /// \param key         what the state is kept as
    /// \param show, hide  the tool tip, by what a click does
    FoldButton(QWidget& folded, const QString& key, Message show, Message hide);

  private:
    void Fold(bool isFolded);
    void ShowTip();

    QWidget& folded_;
    const Message show_;
    const Message hide_;
};

}  // namespace rqm5
