#pragma once

#include <QDialog>
#include <QScrollArea>

namespace rqm5 {

/// Holds the tall part of a dialog or page: as large as its contents where the screen is, else it scrolls
/// and keeps the control with the focus in sight.
class TallArea : public QScrollArea
{
    Q_OBJECT

  public:
    /// \param contents  laid out already; the area takes it over
    TallArea(QWidget* contents, QWidget* parent);

    /// Lets it scroll sideways too, where its contents are wider than a small screen.
    void ScrollSidewaysToo();

    QSize sizeHint() const override;

    /// As wide as the contents have to be, unless it scrolls sideways.
    QSize minimumSizeHint() const override;

    /// Contents that change tell how wide they have to be now.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Gives a dialog the size that it asks for, as far as its screen has room.
    static void FitToScreen(QDialog& dialog);
};

}  // namespace rqm5
