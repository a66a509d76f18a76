#include "memory/fill_bar.h"

#include <QPainter>
#include <algorithm>

namespace rqm5 {
namespace {

constexpr int kWidth = 28;
constexpr int kHeight = 8;

}  // namespace

FillBar::FillBar(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void FillBar::Show(Fill fill)
{
    fill_ = fill;
    setToolTip(fill.rows == 0 ? tr("no rows")
                              : tr("%1 of %2 rows hold a channel").arg(fill.used).arg(fill.rows));
    setStatusTip(toolTip());
    setAccessibleName(toolTip());
    update();
}

QSize FillBar::sizeHint() const
{
    return {kWidth, kHeight};
}

void FillBar::paintEvent(QPaintEvent* /*event*/)
{
    if (fill_.rows == 0)
        return;
    QPainter painter(this);
    const QColor text = palette().color(QPalette::WindowText);
    QColor line = text;
    line.setAlphaF(0.5F);
    painter.setPen(line);
    painter.setBrush(palette().base());
    const QRect frame(0, (height() - kHeight) / 2, width() - 1, kHeight - 1);
    painter.drawRect(frame);
    QRect inner = frame.adjusted(1, 1, 0, 0);
    // One channel among a thousand is still to be seen, and so is one row that is free.
    const int full = inner.width();
    const int part = full * fill_.used / fill_.rows;
    inner.setWidth(fill_.used == 0 ? 0 : fill_.used == fill_.rows ? full : std::clamp(part, 1, full - 1));
    painter.fillRect(inner, palette().highlight());
}

}  // namespace rqm5
