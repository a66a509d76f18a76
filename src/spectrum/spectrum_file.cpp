#include "spectrum/spectrum_file.h"

#include <QBuffer>
#include <QImage>
#include <QSvgGenerator>

#include "files/file_store.h"

namespace rqm5 {
namespace {

constexpr double kWidth = 1600;
constexpr double kSharpness = 2;  ///< pixels of a PNG for each unit

/// All lanes, from the first one on, without what is only of the moment.
SpectrumScene AsPicture(const SpectrumScene& scene)
{
    return {scene.picture, scene.axis};
}

QByteArray Svg(const SpectrumScene& scene, const QFont& font, const QSizeF& size)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setSize(size.toSize());
    svg.setViewBox(QRectF({}, size));
    QPainter painter(&svg);
    painter.setFont(font);
    PaintSpectrum(painter, QRectF({}, size), scene, PaperPalette());
    painter.end();
    return buffer.data();
}

QByteArray Png(const SpectrumScene& scene, const QFont& font, const QSizeF& size)
{
    QImage image((size * kSharpness).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(kSharpness, kSharpness);
    painter.setFont(font);
    PaintSpectrum(painter, QRectF({}, size), scene, PaperPalette());
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

}  // namespace

std::optional<Problem> SaveSpectrum(const QString& path, const SpectrumScene& scene, const QFont& font)
{
    const SpectrumScene picture = AsPicture(scene);
    const QSizeF size(kWidth, SpectrumGeometry::UsualHeight(QFontMetricsF(font), scene.picture));
    const bool isSvg = path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    const QByteArray bytes = isSvg ? Svg(picture, font, size) : Png(picture, font, size);
    return WriteWholeFile(path, bytes.toStdString());
}

void PaintSpectrumPage(QPainter& painter, const QRectF& area, const CloneImage& image)
{
    const SpectrumPicture picture = BuildSpectrum(image);
    painter.save();
    QFont font = painter.font();
    font.setPointSizeF(9);
    // All lanes must fit on the page.
    const double needed = SpectrumGeometry::UsualHeight(QFontMetricsF(font, painter.device()), picture);
    font.setPointSizeF(9 * std::min(1.0, area.height() / needed));
    painter.setFont(font);
    PaintSpectrum(painter, area, {picture}, PaperPalette());
    painter.restore();
}

}  // namespace rqm5
