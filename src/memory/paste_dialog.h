#pragma once

#include <QDialog>

#include "memory/plan_table.h"

namespace rqm5 {

/// Shows what a paste will do before it does it.
class dlgPaste : public QDialog
{
    Q_OBJECT

  public:
    /// \param operation  what it is called: "Paste", "Fill Down"
    dlgPaste(const QString& operation, const CloneImage& image, const PastePlan& plan, QWidget* parent);

  private:
    PlanTableModel model_;
};

}  // namespace rqm5
