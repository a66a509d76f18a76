#pragma once

#include <QWidget>

#include "memory/bank_strip_layout.h"

namespace rqm5 {

/// The rows that the banks share as one strip: what of each bank holds channels, what of it is free, and what
/// is in no bank. A click names a bank.
class BankStrip : public QWidget
{
    Q_OBJECT

  public:
    BankStrip(const CloneImage& image, QWidget* parent);

    /// Shows the image anew.
    void ShowImage();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    void BankClicked(int bank);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    std::vector<StripSegment> Segments() const;
    static QString NameOf(const StripSegment& segment);

    const CloneImage& image_;
};

}  // namespace rqm5
