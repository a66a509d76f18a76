#include "spectrum/spectrum_view.h"

#include <QAccessible>
#include <algorithm>
#include <cmath>
#include <utility>

#include "language/language.h"
#include "language/translated.h"
#include "memory/row_names.h"
#include "spectrum/spectrum_accessible.h"
#include "ui/form_texts.h"

namespace rqm5 {
SpectrumView::SpectrumView(const CloneImage& image, QWidget* parent) : QWidget(parent), image_(image)
{
    InstallSpectrumAccessibility();
    setObjectName(QStringLiteral("picSpectrum"));
    setAccessibleName(Designed(QT_TR_NOOP("Spectrum of the channels")));
    setStatusTip(Designed(
        QT_TR_NOOP("Arrow keys go from channel to channel, Enter selects one; plus, minus and Home zoom")));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(&Language::OfProgram(), &Language::Changed, this, &SpectrumView::TellName);
    ShowImage();
}

void SpectrumView::ShowImage()
{
    const int row = current_ >= 0 ? picture_.marks[static_cast<std::size_t>(current_)].row : -1;
    picture_ = BuildSpectrum(image_);
    current_ = MarkOfRow(picture_, row);
    hovered_ = pressed_ = -1;
    ScrollTo(scroll_);
    QAccessibleEvent reorder(this, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&reorder);
    TellMoved();
}

void SpectrumView::SelectRows(const std::vector<int>& rows)
{
    if (rows == selectedRows_)
        return;
    selectedRows_ = rows;
    update();
}

SpectrumGeometry SpectrumView::Geometry() const
{
    return {rect(), QFontMetricsF(font(), this), picture_, static_cast<double>(scroll_)};
}

SpectrumScene SpectrumView::Scene() const
{
    return {picture_,      axis_,    static_cast<double>(scroll_),
            selectedRows_, hovered_, hasFocus() ? current_ : -1};
}

void SpectrumView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    PaintSpectrum(painter, rect(), Scene(), palette());
}

void SpectrumView::resizeEvent(QResizeEvent* /*event*/)
{
    ScrollTo(scroll_);
    emit Moved();
}

int SpectrumView::HighestScroll() const
{
    const SpectrumGeometry at = Geometry();
    return std::max(0, static_cast<int>(std::ceil(at.Contents() - at.Plot().height())));
}

void SpectrumView::ScrollTo(int pixels)
{
    const int wanted = std::clamp(pixels, 0, HighestScroll());
    if (std::exchange(scroll_, wanted) != wanted)
        TellMoved();
}

void SpectrumView::TellMoved()
{
    update();
    emit Moved();
}

void SpectrumView::ShowAll()
{
    axis_.ShowAll();
    TellMoved();
}

void SpectrumView::Zoom(double factor)
{
    const double place =
        current_ >= 0
            ? axis_.PlaceOf(static_cast<double>(picture_.marks[static_cast<std::size_t>(current_)].hertz))
            : 0.5;
    axis_.Zoom(place >= 0 && place <= 1 ? place : 0.5, factor);
    TellMoved();
}

QString SpectrumView::NameOfMark(int index) const
{
    const SpectrumMark& mark = picture_.marks.at(static_cast<std::size_t>(index));
    const Channel& channel = image_.MemData(mark.row);
    const auto text = [&](Column column) {
        return QString::fromStdString(CellText(channel, RowKind::Memory, image_.ModelNo(), column));
    };
    QStringList parts = {tr("%1 MHz").arg(text(kFrequency)), text(kMode),
                         Translated(RowLabel(image_, mark.row)), mark.isOn ? tr("on") : tr("off")};
    if (mark.isDuplicate)
        parts << tr("stored twice");
    if (!channel.note.empty())
        parts << QString::fromStdString(channel.note);
    return parts.join(QStringLiteral(", "));
}

QRect SpectrumView::PlaceOfMark(int index) const
{
    const SpectrumMark& mark = picture_.marks.at(static_cast<std::size_t>(index));
    const SpectrumGeometry at = Geometry();
    const QPointF centre(at.X(axis_.PlaceOf(static_cast<double>(mark.hertz))), at.LaneMiddle(mark.lane));
    if (!at.Plot().contains(centre))
        return {};
    const double radius = at.MarkRadius();
    return QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius).toAlignedRect();
}

bool SpectrumView::IsSelected(int mark) const
{
    return std::ranges::binary_search(selectedRows_, picture_.marks.at(static_cast<std::size_t>(mark)).row);
}

int SpectrumView::MarkUnder(QPointF position) const
{
    const SpectrumGeometry at = Geometry();
    if (!at.Plot().adjusted(-at.MarkRadius(), 0, at.MarkRadius(), 0).contains(position))
        return -1;
    return MarkAt(picture_, axis_, at.LaneAt(position.y()), at.PlaceAt(position.x()),
                  at.MarkRadius() * 1.5 / at.Plot().width());
}

void SpectrumView::Choose(int mark)
{
    current_ = mark;
    TellName();
    update();
    // Rows that are not in the receiver are not in the table either.
    const int row = picture_.marks.at(static_cast<std::size_t>(mark)).row;
    if (row < kRadioRows)
        emit RowChosen(row);
}

void SpectrumView::TellName()
{
    const int mark = hovered_ >= 0 ? hovered_ : current_;
    emit Named(mark >= 0 ? NameOfMark(mark) : QString());
}

void SpectrumView::GoTo(int mark)
{
    if (mark < 0)
        return;
    current_ = mark;
    const SpectrumMark& there = picture_.marks[static_cast<std::size_t>(mark)];
    axis_.BringIntoSight(static_cast<double>(there.hertz));
    const SpectrumGeometry at = Geometry();
    const double top = there.lane * at.LaneHeight();
    if (top < scroll_)
        ScrollTo(static_cast<int>(top));
    if (top + at.LaneHeight() > scroll_ + at.Plot().height())
        ScrollTo(static_cast<int>(std::ceil(top + at.LaneHeight() - at.Plot().height())));
    TellName();
    TellMoved();
    QAccessibleEvent focus(this, QAccessible::Focus);
    focus.setChild(mark);
    QAccessible::updateAccessibility(&focus);
}

void SpectrumView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    TellName();
    update();
}

void SpectrumView::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

QSize SpectrumView::sizeHint() const
{
    const QFontMetricsF metrics(font(), this);
    return QSizeF(metrics.height() * 45, metrics.height() * 16).toSize();
}

QSize SpectrumView::minimumSizeHint() const
{
    const QFontMetricsF metrics(font(), this);
    return QSizeF(metrics.height() * 18, metrics.height() * 8).toSize();
}

}  // namespace rqm5
