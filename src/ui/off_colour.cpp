#include "ui/off_colour.h"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

namespace rqm5 {
namespace {

constexpr double kReadable = 4.5;

double Luminance(const QColor& colour)
{
    const auto linear = [](float part) {
        const auto value = static_cast<double>(part);
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor Opaque(const QColor& colour, const QColor& ground)
{
    const auto mix = [&](int above, int below) {
        return (above * colour.alpha() + below * (255 - colour.alpha())) / 255;
    };
    return QColor(mix(colour.red(), ground.red()), mix(colour.green(), ground.green()),
                  mix(colour.blue(), ground.blue()));
}

/// Steps of the lightness until the colour can be read, or is black or white.
QColor Readable(QColor colour, const QColor& ground)
{
    const bool isDarker = Contrast(Qt::black, ground) > Contrast(Qt::white, ground);
    constexpr int kStep = 4;
    while (Contrast(colour, ground) < kReadable) {
        const int lightness = std::clamp(colour.lightness() + (isDarker ? -kStep : kStep), 0, 255);
        if (lightness == colour.lightness())
            break;
        colour = QColor::fromHsl(colour.hslHue(), colour.hslSaturation(), lightness);
    }
    return colour;
}

}  // namespace

double Contrast(const QColor& text, const QColor& ground)
{
    const auto [darker, lighter] = std::minmax({Luminance(text), Luminance(ground)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor OffColour(const QPalette& palette, QPalette::ColorRole ground, QPalette::ColorGroup group)
{
    const QColor below = palette.color(group, ground);
    return Readable(Opaque(palette.color(QPalette::Disabled, QPalette::WindowText), below), below);
}

void KeepTextsReadable()
{
    constexpr double kVisible = 3;
    QPalette palette = QGuiApplication::palette();
    const QColor below = palette.color(QPalette::Base);
    const auto isVisible = [&](QPalette::ColorRole role) {
        return Contrast(Opaque(palette.color(role), below), below) >= kVisible;
    };
    const bool hasHints = isVisible(QPalette::PlaceholderText);
    const bool hasLinks = isVisible(QPalette::Link);
    if (hasHints && hasLinks)
        return;
    if (!hasHints)
        palette.setColor(QPalette::PlaceholderText, OffColour(palette, QPalette::Base));
    if (!hasLinks)
        palette.setColor(QPalette::Link, Readable(palette.color(QPalette::Link), below));
    QGuiApplication::setPalette(palette);
}

}  // namespace rqm5
