#pragma once

#include <QLabel>

namespace rqm5 {

/// One line of plain text that ends in an ellipsis where it is too narrow, instead of in the middle of a
/// letter; then its tool tip holds the whole text. It never keeps its window from getting smaller.
class ElidedLabel : public QLabel
{
    Q_OBJECT

  public:
    /// \param mode  which end gives way: Qt::ElideRight for sentences, Qt::ElideMiddle for device paths
    ElidedLabel(Qt::TextElideMode mode, QWidget* parent);

    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QString Visible() const;

    Qt::TextElideMode mode_;
};

}  // namespace rqm5
