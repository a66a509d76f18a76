#pragma once

#include <QDialog>
#include <QScrollArea>

namespace rqm5 {

/// Holds the tall part of a dialog: as large as its contents where the screen is, else it scrolls.
class TallArea : public QScrollArea
{
    Q_OBJECT

  public:
    /// \param contents  laid out already; the area takes it over
    TallArea(QWidget* contents, QWidget* parent);

    QSize sizeHint() const override;

    /// Gives a dialog the size that it asks for, as far as its screen has room.
    static void FitToScreen(QDialog& dialog);
};

}  // namespace rqm5
