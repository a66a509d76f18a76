#include "spectrum/spectrum_marks.h"

#include <algorithm>
#include <cmath>

namespace rqm5 {
namespace {

/// The colours of FM, AM and WFM, and of what is stored twice, on a light and on a dark ground.
constexpr QRgb kModeColours[2][3] = {{0xff1f6fb4, 0xffb85400, 0xff23803a},
                                     {0xff74b7f5, 0xfff0a24e, 0xff74cc80}};
constexpr QRgb kDuplicateColours[2] = {0xffc2185b, 0xffff7aa8};
constexpr double kOutline = 1.3;    ///< of a line
constexpr double kRingSize = 1.75;  ///< of a mark

int FormOf(int mode)
{
    return std::clamp(mode, 0, SpectrumMarks::kModes - 1);
}

}  // namespace

SpectrumMarks::SpectrumMarks(const QPalette& palette, double line)
    : base_(palette.color(QPalette::Base)), isDark_(base_.lightness() < 128), line_(line)
{
}

void SpectrumMarks::Draw(QPainter& painter, const SpectrumMark& mark, QPointF centre, double radius) const
{
    if (mark.isDuplicate)
        DrawRing(painter, centre, radius * kRingSize);
    DrawForm(painter, mark.mode, mark.isOn, centre, radius);
}

void SpectrumMarks::Stamp(QPainter& painter, const SpectrumMark& mark, QPointF centre, double radius)
{
    const double half = std::ceil(radius * kRingSize + line_);
    const int kind = FormOf(mark.mode) * 4 + (mark.isOn ? 2 : 0) + (mark.isDuplicate ? 1 : 0);
    QPixmap& stamp = stamps_.at(static_cast<std::size_t>(kind));
    if (stamp.isNull()) {
        const double sharpness = painter.device()->devicePixelRatioF();
        const int side = static_cast<int>(std::ceil(2 * half * sharpness));
        stamp = QPixmap(side, side);
        stamp.setDevicePixelRatio(sharpness);
        stamp.fill(Qt::transparent);
        QPainter inside(&stamp);
        inside.setRenderHint(QPainter::Antialiasing);
        Draw(inside, mark, {half, half}, radius);
    }
    painter.drawPixmap(centre - QPointF(half, half), stamp);
}

void SpectrumMarks::DrawRing(QPainter& painter, QPointF centre, double radius) const
{
    painter.setPen(QPen(QColor(kDuplicateColours[isDark_ ? 1 : 0]), line_ * kOutline));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(centre, radius, radius);
}

void SpectrumMarks::DrawForm(QPainter& painter, int mode, bool isOn, QPointF centre, double radius) const
{
    const QColor colour(kModeColours[isDark_ ? 1 : 0][FormOf(mode)]);
    painter.setPen(QPen(colour, line_ * kOutline));
    painter.setBrush(isOn ? QBrush(colour) : QBrush(base_));
    if (mode == 1) {
        const QPointF corners[] = {centre + QPointF(0, -radius), centre + QPointF(radius, radius * 0.85),
                                   centre + QPointF(-radius, radius * 0.85)};
        painter.drawPolygon(corners, 3);
    } else if (mode == 2) {
        painter.drawRect(
            QRectF(centre.x() - radius * 0.85, centre.y() - radius * 0.85, radius * 1.7, radius * 1.7));
    } else {
        painter.drawEllipse(centre, radius, radius);
    }
}

}  // namespace rqm5
