#pragma once

#include <QFontMetricsF>
#include <QRectF>

#include "language/translated.h"
#include "spectrum/spectrum_picture.h"

namespace rqm5 {

/// Where the parts of a spectrum stand in an area: names of bands on top, then the lanes, the axis and the
/// legend. All sizes go by the font.
class SpectrumGeometry
{
  public:
    SpectrumGeometry(const QRectF& area, const QFontMetricsF& metrics, const SpectrumPicture& picture,
                     double scroll)
        : line_(metrics.height()), scroll_(scroll)
    {
        double widest = 0;
        for (const SpectrumLane& lane : picture.lanes)
            widest = std::max(widest, metrics.horizontalAdvance(Translated(lane.title)));
        const double titles = std::min(widest + line_, area.width() / kWidestTitles);
        plot_ = area.adjusted(titles, kHeader * line_, -line_ / 2, -kFooter * line_);
        const auto lanes = static_cast<double>(std::max<std::size_t>(picture.lanes.size(), 1));
        laneHeight_ = std::clamp(plot_.height() / lanes, kLowestLane * line_, kHighestLane * line_);
        contents_ = laneHeight_ * lanes;
        plot_.setHeight(std::max(std::min(plot_.height(), contents_), 1.0));
        plot_.setWidth(std::max(plot_.width(), 1.0));
    }

    const QRectF& Plot() const { return plot_; }
    double Line() const { return line_; }
    double LaneHeight() const { return laneHeight_; }

    /// Height of all lanes, of which some may be scrolled out of sight.
    double Contents() const { return contents_; }

    double LaneTop(int lane) const { return plot_.top() + lane * laneHeight_ - scroll_; }
    double LaneMiddle(int lane) const { return LaneTop(lane) + laneHeight_ / 2; }

    /// -1 outside all lanes.
    int LaneAt(double y) const
    {
        return y < plot_.top() || y >= plot_.bottom()
                   ? -1
                   : static_cast<int>((y - plot_.top() + scroll_) / laneHeight_);
    }

    double X(double place) const { return plot_.left() + place * plot_.width(); }
    double PlaceAt(double x) const { return (x - plot_.left()) / plot_.width(); }
    double MarkRadius() const { return std::min(laneHeight_, line_) * kMark; }

    /// The height at which lanes have the size that is good to look at.
    static double UsualHeight(const QFontMetricsF& metrics, const SpectrumPicture& picture)
    {
        return metrics.height() *
               (kHeader + kFooter +
                kUsualLane * static_cast<double>(std::max<std::size_t>(picture.lanes.size(), 1)));
    }

  private:
    static constexpr double kWidestTitles = 3;  ///< a third of the area
    static constexpr double kHeader = 1.3;
    static constexpr double kFooter = 3.2;
    static constexpr double kLowestLane = 1.35;
    static constexpr double kUsualLane = 1.8;
    static constexpr double kHighestLane = 2.6;
    static constexpr double kMark = 0.36;

    QRectF plot_;
    double line_;
    double laneHeight_;
    double contents_;
    double scroll_;
};

}  // namespace rqm5
