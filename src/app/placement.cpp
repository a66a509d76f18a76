#include "app/placement.h"

namespace rqm5 {

QString TwipsText(int pixels, int dotsPerInch)
{
    constexpr float kTwipsPerInch = 1440.0F;
    constexpr int kSinglePrecisionDigits = 7;
    const float twips = static_cast<float>(pixels) * kTwipsPerInch / static_cast<float>(dotsPerInch);
    return QString::number(static_cast<double>(twips), 'g', kSinglePrecisionDigits);
}

void SavePlacement(const QWidget& window, QSettings& settings)
{
    const QRect frame = window.frameGeometry();
    settings.beginGroup(QStringLiteral("Settings"));
    settings.setValue(QStringLiteral("MainLeft"), TwipsText(frame.left(), window.logicalDpiX()));
    settings.setValue(QStringLiteral("MainTop"), TwipsText(frame.top(), window.logicalDpiY()));
    settings.setValue(QStringLiteral("MainWidth"), TwipsText(frame.width(), window.logicalDpiX()));
    settings.setValue(QStringLiteral("MainHeight"), TwipsText(frame.height(), window.logicalDpiY()));
    settings.endGroup();
}

}  // namespace rqm5
