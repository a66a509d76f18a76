#pragma once

#include <QWidget>

#include "memory/bank_fill.h"

namespace rqm5 {

/// A small bar that shows how much of a bank holds channels.
class FillBar : public QWidget
{
    Q_OBJECT

  public:
    explicit FillBar(QWidget* parent = nullptr);

    void Show(Fill fill);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Fill fill_;
};

}  // namespace rqm5
