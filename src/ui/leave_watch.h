#pragma once

#include <QObject>

class QLineEdit;
class QWidget;

namespace rqm5 {

/// Tells when the user leaves a line edit for another control.
///
/// A window that merely goes to the background, and a menu that pops up over the box, do not count.
class LeaveWatch : public QObject
{
    Q_OBJECT

  public:
    explicit LeaveWatch(QLineEdit& box);
    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void Left();
};

/// Lets go of the button whose press made a box lose the focus when a message came up in between: the
/// message took the release, and the button would stay down.
void ReleasePressedButtons(QWidget& window);

}  // namespace rqm5
