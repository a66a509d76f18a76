#pragma once

#include <QAbstractTableModel>

#include "memory/paste_plan.h"

class QTableView;

namespace rqm5 {

/// A plan to write channels, row by row: where each goes, what that row holds now, what comes, and what was
/// refused or left out.
class PlanTableModel : public QAbstractTableModel
{
    Q_OBJECT

  public:
    PlanTableModel(const CloneImage& image, QObject* parent);

    void ShowPlan(const PastePlan& plan);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QString TextOf(const PlannedRow& planned, int column) const;
    QString Contents(const Channel& channel) const;

    const CloneImage& image_;
    PastePlan plan_;
};

/// A table that shows a plan, for a dialog.
QTableView* MakePlanTable(PlanTableModel& model, QWidget* parent);

/// "Rows that are written: 38, of which 5 hold a channel now; ..."
Message PlanSummary(const CloneImage& image, const PastePlan& plan);

}  // namespace rqm5
