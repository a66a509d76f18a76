#include <QApplication>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "spectrum/spectrum_view.h"

namespace rqm5 {
namespace {

constexpr double kWheelZoom = 1.25;  ///< a notch of the wheel
constexpr int kNotch = 120;
constexpr double kKeyZoom = 1.5;

}  // namespace

void SpectrumView::wheelEvent(QWheelEvent* event)
{
    const QPoint delta = event->angleDelta();
    if (event->modifiers() & Qt::ShiftModifier) {
        ScrollTo(scroll_ - (delta.y() != 0 ? delta.y() : delta.x()) / 2);
    } else {
        const double place = Geometry().PlaceAt(event->position().x());
        axis_.Zoom(std::clamp(place, 0.0, 1.0),
                   std::pow(kWheelZoom, static_cast<double>(delta.y()) / kNotch));
        if (delta.x() != 0)
            axis_.Pan(-static_cast<double>(delta.x()) / kNotch / 10);
        TellMoved();
    }
    // The pointer has stayed, and the marks have not.
    Hover(MarkUnder(event->position()), event->globalPosition().toPoint());
    event->accept();
}

void SpectrumView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    pressed_ = MarkUnder(event->position());
    dragFrom_ = event->position();
    isDragging_ = false;
}

void SpectrumView::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return Hover(MarkUnder(event->position()), event->globalPosition().toPoint());
    if (!isDragging_ && (event->position() - dragFrom_).manhattanLength() < QApplication::startDragDistance())
        return;
    isDragging_ = true;
    setCursor(Qt::ClosedHandCursor);
    Drag(event->position());
}

void SpectrumView::Drag(QPointF position)
{
    const QPointF way = position - dragFrom_;
    dragFrom_ = position;
    axis_.Pan(-way.x() / Geometry().Plot().width());
    ScrollTo(scroll_ - static_cast<int>(std::lround(way.y())));
    TellMoved();
}

void SpectrumView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    unsetCursor();
    const int mark = std::exchange(pressed_, -1);
    if (!std::exchange(isDragging_, false) && mark >= 0 && mark == MarkUnder(event->position()))
        Choose(mark);
}

void SpectrumView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (MarkUnder(event->position()) >= 0)
        return;
    const double hertz = axis_.HertzAt(Geometry().PlaceAt(event->position().x()));
    if (const SpectrumBand* band = BandAt(picture_, hertz)) {
        axis_.Show(band->range.low * 1e6, band->range.high * 1e6);
        TellMoved();
    }
}

void SpectrumView::Hover(int mark, const QPoint& position)
{
    if (mark == hovered_)
        return;
    hovered_ = mark;
    if (mark >= 0)
        QToolTip::showText(position, NameOfMark(mark).toHtmlEscaped(), this);
    else
        QToolTip::hideText();
    TellName();
    update();
}

void SpectrumView::leaveEvent(QEvent* event)
{
    Hover(-1, {});
    QWidget::leaveEvent(event);
}

void SpectrumView::keyPressEvent(QKeyEvent* event)
{
    if (!TakeKey(*event))
        QWidget::keyPressEvent(event);
}

bool SpectrumView::TakeKey(const QKeyEvent& event)
{
    switch (event.key()) {
        case Qt::Key_Left:
            GoTo(NextMark(picture_, current_, SpectrumStep::Left));
            return true;
        case Qt::Key_Right:
            GoTo(NextMark(picture_, current_, SpectrumStep::Right));
            return true;
        case Qt::Key_Up:
            GoTo(NextMark(picture_, current_, SpectrumStep::Up));
            return true;
        case Qt::Key_Down:
            GoTo(NextMark(picture_, current_, SpectrumStep::Down));
            return true;
        case Qt::Key_Home:
            ShowAll();
            return true;
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            Zoom(kKeyZoom);
            return true;
        case Qt::Key_Minus:
            Zoom(1 / kKeyZoom);
            return true;
        case Qt::Key_PageUp:
        case Qt::Key_PageDown: {
            const int page = static_cast<int>(Geometry().Plot().height());
            ScrollTo(scroll_ + (event.key() == Qt::Key_PageDown ? page : -page));
            return true;
        }
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (current_ >= 0)
                Choose(current_);
            return current_ >= 0;
        default:
            return false;
    }
}

}  // namespace rqm5
