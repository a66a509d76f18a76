#pragma once

#include <QDialog>

#include "memory/fill_series.h"
#include "memory/plan_table.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace rqm5 {

/// Makes a series of channels at even distances, and shows it before it is written.
class dlgFill : public QDialog
{
    Q_OBJECT

  public:
    /// \param group  the rows that may be filled
    /// \param from   the memory row that the series begins at
    dlgFill(const CloneImage& image, RowRange group, int from, QWidget* parent);

    /// What the controls make.
    PastePlan Plan() const;

  private:
    QLayout* BuildNumbers();
    QLayout* BuildLength();
    void FillLikes();
    FillSeries Series() const;
    void ShowPlan();

    const CloneImage& image_;
    RowRange group_;
    int from_;
    QLineEdit* txtFillStart_;
    QLineEdit* txtFillSpacing_;
    QRadioButton* opbFillCount_;
    QRadioButton* opbFillLast_;
    QSpinBox* spnFillCount_;
    QLineEdit* txtFillLast_;
    QComboBox* cbbFillLike_;
    QCheckBox* chkFillSkip_;
    QLabel* lblFillSummary_;
    QPushButton* ok_ = nullptr;
    PlanTableModel model_;
};

}  // namespace rqm5
