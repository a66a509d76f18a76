#pragma once

#include <QString>
#include <optional>

#include "image/problem.h"
#include "spectrum/spectrum_painter.h"

namespace rqm5 {

/// Saves a spectrum with all its lanes: as SVG where the name says so, else as PNG. The whole of it, or the
/// file stays as it was.
std::optional<Problem> SaveSpectrum(const QString& path, const SpectrumScene& scene, const QFont& font);

/// A page of File > Print: all of the image's channels, over the receiver's whole range.
void PaintSpectrumPage(QPainter& painter, const QRectF& area, const CloneImage& image);

}  // namespace rqm5
