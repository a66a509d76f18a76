#include "app/desktop_news.h"

#include <QGuiApplication>

namespace rqm5 {

DesktopNews::DesktopNews(TransferCommands& transfers, const StartOptions& options, QWidget& window)
    : QObject(&window), options_(options), window_(window)
{
    connect(&transfers, &TransferCommands::ProgressTold, this,
            [this](const QString&, double fraction) { ShowProgress(fraction); });
    connect(&transfers, &TransferCommands::Ended, this, [this] { ShowProgress(-1); });
    connect(&transfers, &TransferCommands::Noted, this, &DesktopNews::Tell);
    connect(&transfers, &TransferCommands::Asking, this, &DesktopNews::Tell);
}

void DesktopNews::ShowProgress(double fraction)
{
    // A message to the desktop for every block would be too many.
    const int percent = fraction < 0 ? -1 : static_cast<int>(fraction * 100);
    if (percent == shown_ || !options_.showProgress)
        return;
    shown_ = percent;
    options_.showProgress(fraction);
}

void DesktopNews::Tell(const QString& text)
{
    const bool isInFront =
        QGuiApplication::applicationState() == Qt::ApplicationActive && !window_.isMinimized();
    if (options_.notify && !isInFront)
        options_.notify(text);
}

}  // namespace rqm5
