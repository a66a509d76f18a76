#pragma once

#include <QCheckBox>
#include <QDateTime>
#include <QDialog>
#include <QLabel>

#include "language/message.h"
#include "link/change_list.h"

namespace rqm5 {

/// `dlgWriteChanges`: what a write of the changes would send and why, row by row and field by field, and what
/// goes with it.
class dlgWriteChanges : public QDialog
{
    Q_OBJECT

  public:
    /// \param since  when the oldest of what is known of the receiver was seen
    dlgWriteChanges(const CloneImage& image, const ChangePlan& plan, const QDateTime& since, QWidget* parent);

    bool KeepsBackup() const { return chkBackup_->isChecked(); }
    bool Verifies() const { return chkVerify_->isChecked(); }

  private:
    void Build(const std::vector<RowChange>& changes);
    void ShowTime();

    const std::size_t checked_;  ///< blocks that are read first
    const std::size_t written_;
    const std::size_t verified_;  ///< those written that can be read back
    QLabel* lblKnown_;
    QLabel* lblTime_;
    QCheckBox* chkBackup_;
    QCheckBox* chkVerify_;
};

/// "4 minutes ago", "3 days ago"
Message AgeText(const QDateTime& since, const QDateTime& now);

}  // namespace rqm5
