#pragma once

#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTreeWidget>
#include <vector>

#include "link/change_list.h"

namespace rqm5 {

/// `dlgWriteConflicts`: the rows that were changed here and at the receiver, too. Each is decided before
/// anything is written.
class dlgWriteConflicts : public QDialog
{
    Q_OBJECT

  public:
    dlgWriteConflicts(const CloneImage& image, const ChangePlan& plan, QWidget* parent);

    /// For each conflict of the plan, once the dialog was accepted.
    std::vector<bool> TakesReceivers() const;

  private:
    enum Decision { Open, Mine, Receivers };

    void AddConflict(const ConflictRow& conflict, QTreeWidget& list);
    void DecideAll(Decision decision);
    void EnableWrite();

    std::vector<QComboBox*> decisions_;
    QPushButton* OKButton_ = nullptr;
};

}  // namespace rqm5
