#pragma once

#include <QWidget>
#include <vector>

#include "spectrum/spectrum_painter.h"

namespace rqm5 {

/// The spectrum as one looks at it: wheel and drag move it, a click or Enter chooses a channel, the arrow
/// keys go from channel to channel.
class SpectrumView : public QWidget
{
    Q_OBJECT

  public:
    SpectrumView(const CloneImage& image, QWidget* parent);

    /// Shows the image anew.
    void ShowImage();

    /// What is selected in the table; memory rows, rising.
    void SelectRows(const std::vector<int>& rows);

    void ShowAll();
    void Zoom(double factor);

    /// Lanes are out of sight above by so many pixels.
    void ScrollTo(int pixels);
    int Scroll() const { return scroll_; }
    int HighestScroll() const;

    const SpectrumPicture& Picture() const { return picture_; }
    const SpectrumAxis& Axis() const { return axis_; }
    int Current() const { return current_; }
    SpectrumScene Scene() const;

    /// "145.500000 MHz, FM, Row 12 (Bank 0, channel 12), on"
    QString NameOfMark(int mark) const;

    /// Where a mark is in the widget; empty when it is out of sight.
    QRect PlaceOfMark(int mark) const;
    bool IsSelected(int mark) const;

    /// What a click on it does.
    void Choose(int mark);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    void RowChosen(int row);

    /// The name of the channel under the pointer or of the current one; empty for none.
    void Named(const QString& name);

    /// Another part is shown.
    void Moved();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    SpectrumGeometry Geometry() const;
    int MarkUnder(QPointF position) const;
    void Hover(int mark, const QPoint& position);
    void Drag(QPointF position);
    void GoTo(int mark);
    bool TakeKey(const QKeyEvent& event);
    void TellMoved();
    void TellName();

    const CloneImage& image_;
    SpectrumPicture picture_;
    SpectrumAxis axis_;
    std::vector<int> selectedRows_;
    int scroll_ = 0;
    int hovered_ = -1;
    int current_ = -1;
    int pressed_ = -1;  ///< the mark on which the button went down
    QPointF dragFrom_;
    bool isDragging_ = false;
};

}  // namespace rqm5
