#pragma once

#include <QWidget>

#include "app/start_options.h"
#include "app/transfer_commands.h"

namespace rqm5 {

/// Tells the desktop of transfers: how far one is, on the program's icon; and what it came to or asks, when
/// nobody has the program in front of him.
class DesktopNews : public QObject
{
    Q_OBJECT

  public:
    DesktopNews(TransferCommands& transfers, const StartOptions& options, QWidget& window);

  private:
    void ShowProgress(double fraction);
    void Tell(const QString& text);

    const StartOptions& options_;
    const QWidget& window_;
    int shown_ = -1;  ///< percent; -1 for none
};

}  // namespace rqm5
