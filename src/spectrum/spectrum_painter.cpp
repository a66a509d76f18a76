#include "spectrum/spectrum_painter.h"

#include <QCoreApplication>
#include <algorithm>

#include "language/translated.h"
#include "spectrum/spectrum_marks.h"

namespace rqm5 {
namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("Spectrum", text);
}

constexpr float kGridStrength = 0.22F;
constexpr double kLabelGap = 5.5;  ///< of two labels of the axis, in heights of the font
constexpr double kHatchGap = 0.5;  ///< of the font's height
constexpr double kHaloSize = 2.1;  ///< of a mark

class SpectrumPainter
{
  public:
    SpectrumPainter(QPainter& painter, const QRectF& area, const SpectrumScene& scene,
                    const QPalette& palette)
        : painter_(painter),
          area_(area),
          scene_(scene),
          palette_(palette),
          metrics_(painter.font(), painter.device()),
          at_(area, metrics_, scene.picture, scene.scroll),
          isOnScreen_(painter.device()->devType() == QInternal::Widget),
          pen_(metrics_.height() / 14),
          marks_(palette, pen_)
    {
        grid_ = Soft(kGridStrength);
    }

    void Paint()
    {
        painter_.fillRect(area_, palette_.base());
        painter_.setRenderHint(QPainter::Antialiasing);
        PaintBands();
        PaintGrid();
        PaintLanes();
        PaintFrame();
        PaintLegend();
    }

  private:
    /// The colour of texts, weaker. No transparency: not everything that shows an SVG knows it.
    QColor Soft(float strength) const
    {
        const QColor text = palette_.color(QPalette::Text);
        const QColor base = palette_.color(QPalette::Base);
        const auto mix = [strength](float a, float b) { return a * strength + b * (1 - strength); };
        return QColor::fromRgbF(mix(text.redF(), base.redF()), mix(text.greenF(), base.greenF()),
                                mix(text.blueF(), base.blueF()));
    }

    double XOf(double hertz) const { return at_.X(scene_.axis.PlaceOf(hertz)); }

    /// The part of a range in MHz that is shown, over the height of the plot; empty for none.
    QRectF Column(FrequencyRange range) const
    {
        const double left = std::max(XOf(range.low * 1e6), at_.Plot().left());
        const double right = std::min(XOf(range.high * 1e6), at_.Plot().right());
        return right > left ? QRectF(left, at_.Plot().top(), right - left, at_.Plot().height()) : QRectF();
    }

    void DrawText(const QRectF& box, Qt::Alignment alignment, const QString& text, bool isSoft = false)
    {
        painter_.setPen(isSoft ? Soft(0.75F) : palette_.color(QPalette::Text));
        painter_.drawText(box, static_cast<int>(alignment) | Qt::TextSingleLine, text);
    }

    void PaintBands()
    {
        for (const SpectrumBand& band : scene_.picture.bands) {
            const QRectF column = Column(band.range);
            if (column.isEmpty())
                continue;
            if (band.number % 2 == 0)
                painter_.fillRect(column, palette_.alternateBase());
            const QString name = Tr(QT_TRANSLATE_NOOP("Spectrum", "VFO %1")).arg(band.number);
            const QString number = QString::number(band.number);
            const QRectF head(column.left(), area_.top(), column.width(), column.top() - area_.top());
            for (const QString& text : {name, number})
                if (metrics_.horizontalAdvance(text) + pen_ * 4 < head.width()) {
                    DrawText(head, Qt::AlignCenter, text, true);
                    break;
                }
        }
        for (const SpectrumBand& band : scene_.picture.blocked)
            Hatch(Column(band.range));
    }

    /// Line by line: a file of vectors knows no pattern.
    void Hatch(const QRectF& box)
    {
        if (box.isEmpty())
            return;
        painter_.setPen(QPen(Soft(0.45F), pen_));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(box);
        const double gap = metrics_.height() * kHatchGap;
        for (double start = box.left() - box.height(); start < box.right(); start += gap) {
            const double from = std::max(start, box.left());
            const double to = std::min(start + box.height(), box.right());
            if (to > from)
                painter_.drawLine(QPointF(from, box.bottom() - (from - start)),
                                  QPointF(to, box.bottom() - (to - start)));
        }
    }

    void PaintGrid()
    {
        const QRectF& plot = at_.Plot();
        const double gap = metrics_.height() * kLabelGap;
        for (const SpectrumTick& tick : Ticks(scene_.axis, plot.width(), gap)) {
            const double x = XOf(tick.hertz);
            const bool isBig = !tick.label.empty();
            painter_.setPen(QPen(grid_, isBig ? pen_ : pen_ / 2));
            painter_.drawLine(QPointF(x, plot.top()),
                              QPointF(x, plot.bottom() + (isBig ? pen_ * 4 : pen_ * 2)));
            const QString label = QString::fromStdString(tick.label);
            QRectF box(x - gap / 2, plot.bottom() + pen_ * 4, gap, metrics_.height());
            // A label at an end stays in the picture.
            const double half = metrics_.horizontalAdvance(label) / 2;
            box.moveCenter({std::min(x, area_.right() - half), box.center().y()});
            if (isBig)
                DrawText(box, Qt::AlignCenter, label);
        }
    }

    void PaintLanes()
    {
        painter_.save();
        // Where all lanes are in sight nothing is cut, which files of vectors could not do.
        if (at_.Contents() > at_.Plot().height() + 1)
            painter_.setClipRect(QRectF(area_.left(), at_.Plot().top(), area_.width(), at_.Plot().height()));
        for (int lane = 0; lane < static_cast<int>(scene_.picture.lanes.size()); ++lane) {
            if (at_.LaneTop(lane) >= at_.Plot().bottom() || at_.LaneTop(lane + 1) <= at_.Plot().top())
                continue;
            PaintLaneTitle(lane);
            for (const SpectrumSpan& span : scene_.picture.spans)
                if (span.lane == lane)
                    PaintSpan(span);
            PaintMarks(scene_.picture.lanes[static_cast<std::size_t>(lane)]);
        }
        painter_.restore();
    }

    void PaintLaneTitle(int lane)
    {
        const double bottom = at_.LaneTop(lane + 1);
        painter_.setPen(QPen(grid_, pen_ / 2));
        painter_.drawLine(QPointF(area_.left(), bottom), QPointF(at_.Plot().right(), bottom));
        const QRectF box(area_.left() + pen_ * 4, at_.LaneTop(lane),
                         at_.Plot().left() - area_.left() - pen_ * 8, at_.LaneHeight());
        const QString title = Translated(scene_.picture.lanes[static_cast<std::size_t>(lane)].title);
        DrawText(box, Qt::AlignLeft | Qt::AlignVCenter,
                 metrics_.elidedText(title, Qt::ElideRight, box.width()));
    }

    void PaintSpan(const SpectrumSpan& span)
    {
        const double left = std::max(XOf(static_cast<double>(span.low)), at_.Plot().left());
        const double right = std::min(XOf(static_cast<double>(span.high)), at_.Plot().right());
        if (right <= left)
            return;
        const double height = at_.MarkRadius() * 1.2;
        const QRectF box(left, at_.LaneMiddle(span.lane) - height / 2, right - left, height);
        painter_.setPen(QPen(Soft(0.5F), pen_));
        painter_.setBrush(span.isOn ? QBrush(Soft(0.25F)) : QBrush(Qt::NoBrush));
        painter_.drawRect(box);
    }

    void PaintMarks(const SpectrumLane& lane)
    {
        // What stands out is painted last.
        for (const bool standsOut : {false, true})
            for (int i = lane.firstMark; i < lane.firstMark + lane.marks; ++i) {
                const SpectrumMark& mark = scene_.picture.marks[static_cast<std::size_t>(i)];
                const double place = scene_.axis.PlaceOf(static_cast<double>(mark.hertz));
                if (place >= 0 && place <= 1 && StandsOut(mark, i) == standsOut)
                    PaintMark(mark, i, {at_.X(place), at_.LaneMiddle(mark.lane)});
            }
    }

    bool IsSelected(const SpectrumMark& mark) const
    {
        return std::ranges::binary_search(scene_.selectedRows, mark.row);
    }

    bool StandsOut(const SpectrumMark& mark, int index) const
    {
        return index == scene_.hovered || index == scene_.current || IsSelected(mark);
    }

    void PaintMark(const SpectrumMark& mark, int index, QPointF centre)
    {
        const double radius = at_.MarkRadius() * (index == scene_.hovered ? 1.3 : 1);
        if (IsSelected(mark))
            PaintSelection(centre, radius);
        if (index == scene_.current) {
            painter_.setPen(QPen(palette_.color(QPalette::Text), pen_, Qt::DotLine));
            painter_.setBrush(Qt::NoBrush);
            const double side = radius * kHaloSize;
            painter_.drawRect(QRectF(centre.x() - side, centre.y() - side, 2 * side, 2 * side));
        }
        if (isOnScreen_ && index != scene_.hovered)
            marks_.Stamp(painter_, mark, centre, radius);
        else
            marks_.Draw(painter_, mark, centre, radius);
    }

    void PaintSelection(QPointF centre, double radius)
    {
        QColor colour = palette_.color(QPalette::Highlight);
        painter_.setPen(QPen(colour, pen_ * 1.5));
        // One line through all lanes says where it is; hundreds would say nothing.
        if (scene_.selectedRows.size() == 1) {
            painter_.drawLine(QPointF(centre.x(), at_.Plot().top()),
                              QPointF(centre.x(), at_.Plot().bottom()));
        }
        colour.setAlphaF(0.45F);
        painter_.setBrush(colour);
        painter_.drawRoundedRect(QRectF(centre.x() - radius * kHaloSize, centre.y() - radius * kHaloSize,
                                        2 * radius * kHaloSize, 2 * radius * kHaloSize),
                                 radius / 2, radius / 2);
    }

    void PaintFrame()
    {
        painter_.setPen(QPen(grid_, pen_));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(at_.Plot());
        if (scene_.picture.marks.empty())
            DrawText(at_.Plot(), Qt::AlignCenter, Tr(QT_TRANSLATE_NOOP("Spectrum", "No channels")), true);
    }

    void PaintLegend()
    {
        const double middle = at_.Plot().bottom() + metrics_.height() * 2.4;
        double x = at_.Plot().left() + metrics_.height() / 2;
        const auto entry = [&](const QString& text, const auto& draw) {
            const double width = metrics_.height() * 1.1 + metrics_.horizontalAdvance(text);
            if (x + width > area_.right())
                return;
            draw(QPointF(x, middle));
            DrawText(
                QRectF(x + metrics_.height() * 0.8, middle - metrics_.height(), width, metrics_.height() * 2),
                Qt::AlignLeft | Qt::AlignVCenter, text);
            x += width + metrics_.height() * 0.7;
        };
        const double radius = metrics_.height() * 0.3;
        for (int mode = 0; mode < SpectrumMarks::kModes; ++mode)
            entry(QString::fromUtf8(ModeName[static_cast<std::size_t>(mode)].data()),
                  [&](QPointF at) { marks_.DrawForm(painter_, mode, true, at, radius); });
        entry(Tr(QT_TRANSLATE_NOOP("Spectrum", "off")),
              [&](QPointF at) { marks_.DrawForm(painter_, 0, false, at, radius); });
        entry(Tr(QT_TRANSLATE_NOOP("Spectrum", "stored twice")),
              [&](QPointF at) { marks_.DrawRing(painter_, at, radius * 1.4); });
        if (!scene_.picture.blocked.empty())
            entry(Tr(QT_TRANSLATE_NOOP("Spectrum", "blocked")), [&](QPointF at) {
                Hatch({at.x() - radius * 1.4, at.y() - radius, radius * 2.8, radius * 2});
            });
    }

    QPainter& painter_;
    const QRectF area_;
    const SpectrumScene& scene_;
    const QPalette& palette_;
    const QFontMetricsF metrics_;
    const SpectrumGeometry at_;
    const bool isOnScreen_;
    const double pen_;  ///< width of a line
    QColor grid_;
    SpectrumMarks marks_;
};

}  // namespace

void PaintSpectrum(QPainter& painter, const QRectF& area, const SpectrumScene& scene, const QPalette& palette)
{
    SpectrumPainter(painter, area, scene, palette).Paint();
}

QPalette PaperPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf1, 0xf3, 0xf5));
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
    return palette;
}

}  // namespace rqm5
