#include "ui/tall_area.h"

#include <QEvent>
#include <QScreen>
#include <QScrollBar>

#include "ui/follow_focus.h"

namespace rqm5 {

TallArea::TallArea(QWidget* contents, QWidget* parent) : QScrollArea(parent)
{
    setWidget(contents);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    FollowFocus(*this);
}

QSize TallArea::sizeHint() const
{
    const int frame = 2 * frameWidth();
    return widget()->sizeHint() + QSize(frame + verticalScrollBar()->sizeHint().width(), frame);
}

void TallArea::ScrollSidewaysToo()
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

QSize TallArea::minimumSizeHint() const
{
    if (horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff)
        return QScrollArea::minimumSizeHint();
    return {TallArea::sizeHint().width() - widget()->sizeHint().width() + widget()->minimumSizeHint().width(),
            QScrollArea::minimumSizeHint().height()};
}

bool TallArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

void TallArea::FitToScreen(QDialog& dialog)
{
    constexpr QSize kWindowFrame(8, 36);
    // A layout remembers how large its parts wanted to be; these do not tell when their contents change.
    for (TallArea* area : dialog.findChildren<TallArea*>())
        area->updateGeometry();
    dialog.resize(dialog.sizeHint().boundedTo(dialog.screen()->availableSize() - kWindowFrame));
}

}  // namespace rqm5
