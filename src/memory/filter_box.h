#pragma once

#include <QComboBox>
#include <QLabel>

#include "memory/row_filter.h"

namespace rqm5 {

/// Which rows of its group the memory table shows: `cbbFilter`, and how many these are.
class FilterBox : public QWidget
{
    Q_OBJECT

  public:
    explicit FilterBox(QWidget* parent);

    RowFilter Filter() const { return static_cast<RowFilter>(cbbFilter_->currentIndex()); }
    bool IsOn() const { return Filter() != RowFilter::All; }
    void SwitchOff() { cbbFilter_->setCurrentIndex(0); }

    /// Says beside a filter that is on how many rows it leaves.
    void ShowCount(int shown, int all);

  signals:
    void Changed();

  private:
    void ShowTexts();

    QComboBox* cbbFilter_;
    QLabel* lblShown_;
    int shown_ = 0;
    int all_ = 0;
};

}  // namespace rqm5
