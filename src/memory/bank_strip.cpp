#include "memory/bank_strip.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <cmath>

#include "language/translated.h"
#include "memory/bank_layout.h"
#include "ui/form_texts.h"

namespace rqm5 {
namespace {

constexpr double kLeastWidth = 7;
constexpr double kBar = 1.1;  ///< heights of the font

}  // namespace

BankStrip::BankStrip(const CloneImage& image, QWidget* parent) : QWidget(parent), image_(image)
{
    setObjectName(QStringLiteral("picBanks"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    setStatusTip(Designed(QT_TR_NOOP("What of each bank holds channels; a click goes to the bank's size")));
    ShowImage();
}

void BankStrip::ShowImage()
{
    const Fill banks = FillOf(image_, {0, TotalBankSize(image_)});
    setAccessibleName(tr("All banks: %1 of %2 rows hold a channel, %3 rows are in no bank")
                          .arg(banks.used)
                          .arg(banks.rows)
                          .arg(RowsInNoBank(image_).count));
    update();
}

std::vector<StripSegment> BankStrip::Segments() const
{
    return LayOutBanks(image_, width() - 1, kLeastWidth);
}

QString BankStrip::NameOf(const StripSegment& segment)
{
    const QString name =
        segment.bank == kUnassigned ? tr("In no bank") : Translated(SelectorText(segment.bank));
    return tr("%1: %2 of %3 rows hold a channel").arg(name).arg(segment.fill.used).arg(segment.fill.rows);
}

void BankStrip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.55F);
    const double height = std::round(fontMetrics().height() * kBar);
    for (const StripSegment& segment : Segments()) {
        const double left = std::round(segment.left);
        const QRectF bar(left + 0.5, 0.5, std::round(segment.left + segment.width) - left, height);
        const bool isBank = segment.bank != kUnassigned;
        painter.setPen(line);
        painter.setBrush(isBank ? palette().base() : QBrush(line, Qt::BDiagPattern));
        painter.drawRect(bar);
        QRectF used = bar.adjusted(0.5, 0.5, -0.5, -0.5);
        used.setWidth(used.width() * segment.fill.used / segment.fill.rows);
        painter.fillRect(used, palette().highlight());
        const QString number = isBank ? QString::number(segment.bank) : tr("no bank");
        const QRectF below(bar.left(), bar.bottom(), bar.width(), fontMetrics().height());
        painter.setPen(palette().color(QPalette::WindowText));
        if (fontMetrics().horizontalAdvance(number) < bar.width())
            painter.drawText(below, Qt::AlignCenter, number);
    }
}

bool BankStrip::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const std::vector<StripSegment> segments = Segments();
    if (const StripSegment* segment = SegmentAt(segments, help->pos().x()))
        QToolTip::showText(help->globalPos(), NameOf(*segment), this);
    else
        QToolTip::hideText();
    return true;
}

void BankStrip::mousePressEvent(QMouseEvent* event)
{
    const std::vector<StripSegment> segments = Segments();
    const StripSegment* segment = SegmentAt(segments, event->position().x());
    if (event->button() == Qt::LeftButton && segment != nullptr && segment->bank != kUnassigned)
        emit BankClicked(segment->bank);
}

QSize BankStrip::sizeHint() const
{
    return {fontMetrics().height() * 40,
            static_cast<int>(std::ceil(fontMetrics().height() * (1 + kBar))) + 2};
}

QSize BankStrip::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

}  // namespace rqm5
