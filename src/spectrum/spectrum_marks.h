#pragma once

#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <array>

#include "spectrum/spectrum_picture.h"

namespace rqm5 {

/// Draws the marks of channels: by mode in form and colour, hollow when off, ringed when stored twice.
class SpectrumMarks
{
  public:
    /// \param line  width of a line
    SpectrumMarks(const QPalette& palette, double line);

    static constexpr int kModes = 3;

    void Draw(QPainter& painter, const SpectrumMark& mark, QPointF centre, double radius) const;

    /// The same for a screen, on whole pixels, always with one radius. A thousand smooth outlines are dear
    /// there, and only a dozen of them are different.
    void Stamp(QPainter& painter, const SpectrumMark& mark, QPointF centre, double radius);

    void DrawForm(QPainter& painter, int mode, bool isOn, QPointF centre, double radius) const;
    void DrawRing(QPainter& painter, QPointF centre, double radius) const;

  private:
    const QColor base_;
    const bool isDark_;
    const double line_;
    std::array<QPixmap, kModes * 4> stamps_;
};

}  // namespace rqm5
