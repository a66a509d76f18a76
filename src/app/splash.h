#pragma once

#include <QWidget>

namespace rqm5 {

/// `frmSplash`: what shows while the program starts.
class frmSplash : public QWidget
{
    Q_OBJECT

  public:
    frmSplash();

    /// Shows the window and has it painted before it returns.
    void ShowAtOnce();
};

}  // namespace rqm5
