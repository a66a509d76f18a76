#include "printing/listing_printer.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <algorithm>

#include "fonts/fixed_pitch_font.h"
#include "printing/grid_text.h"

namespace rqm5 {
namespace {

constexpr double kLargestPointSize = 10;
constexpr double kMarginMillimetres = 12;
constexpr double kLineSpacing = 1.1;      ///< of the font's height: borrowed characters may be taller
constexpr double kLineOfCellWidth = 2.5;  ///< at least, for fonts whose lines almost touch

/// The fixed-pitch font at the size at which this many columns fit into a width.
QFont FittingFont(QPagedPaintDevice& device, int columns, double width)
{
    QFont font = FixedPitchFont({});
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPointSizeF(kLargestPointSize);
    const double needed = columns * CellWidth(QFontMetricsF(font, &device));
    font.setPointSizeF(kLargestPointSize * std::min(1.0, width / needed));
    return font;
}

class PagePainter
{
  public:
    PagePainter(QPagedPaintDevice& device, QPainter& painter, int columns)
        : painter_(painter),
          area_(painter.viewport()),
          font_(FittingFont(device, columns, area_.width())),
          metrics_(font_, &device),
          lineHeight_(std::max(metrics_.height() * kLineSpacing, CellWidth(metrics_) * kLineOfCellWidth)),
          ruleWidth_(columns * CellWidth(metrics_))
    {
    }

    int LinesPerPage() const { return static_cast<int>(area_.height() / lineHeight_); }

    void Paint(const Page& page)
    {
        double top = 0;
        for (const PageLine& line : page) {
            PaintLine(line, top);
            top += lineHeight_;
        }
    }

    /// What the lines of a page leave of it.
    QRectF Below(const Page& page) const
    {
        const double top = static_cast<double>(page.size()) * lineHeight_;
        return {0, top, area_.width(), area_.height() - top};
    }

  private:
    void PaintLine(const PageLine& line, double top)
    {
        QFont font = font_;
        font.setBold(line.kind == LineKind::SectionTitle);
        painter_.setFont(font);
        DrawOnGrid(painter_, {0, top + metrics_.ascent()}, QString::fromStdString(line.text),
                   CellWidth(metrics_));
        if (line.kind == LineKind::PageTitle || line.kind == LineKind::ColumnHead) {
            painter_.setPen(QPen(Qt::black, lineHeight_ / 24));
            const double below = top + (metrics_.height() + lineHeight_) / 2;
            painter_.drawLine(QPointF(0, below), QPointF(ruleWidth_, below));
        }
    }

    QPainter& painter_;
    QRectF area_;
    QFont font_;
    QFontMetricsF metrics_;
    double lineHeight_;
    double ruleWidth_;
};

}  // namespace

PrintEnd PrintListing(QPagedPaintDevice& device, const Listing& listing, const PageTitle& title,
                      const PageProgress& progress, const PagePicture& picture)
{
    QPainter painter;
    if (!painter.begin(&device))
        return PrintEnd::Failed;
    PagePainter pagePainter(device, painter, PageColumns(listing));
    const std::vector<Page> pages = LayOutPages(listing, title, pagePainter.LinesPerPage(), picture ? 1 : 0);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (!progress(static_cast<int>(i), static_cast<int>(pages.size())))
            return PrintEnd::Cancelled;
        if (i > 0 && !device.newPage())
            return PrintEnd::Failed;
        pagePainter.Paint(pages[i]);
        if (picture && i + 1 == pages.size())
            picture(painter, pagePainter.Below(pages[i]));
    }
    return painter.end() ? PrintEnd::Done : PrintEnd::Failed;
}

QPageLayout DefaultPageLayout()
{
    const bool usesInches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    constexpr QMarginsF kMargins(kMarginMillimetres, kMarginMillimetres, kMarginMillimetres,
                                 kMarginMillimetres);
    return {QPageSize(usesInches ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait, kMargins,
            QPageLayout::Millimeter};
}

}  // namespace rqm5
