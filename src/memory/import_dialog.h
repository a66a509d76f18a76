#pragma once

#include <QDialog>
#include <string>

#include "memory/list_table_model.h"
#include "memory/plan_table.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTableView;

namespace rqm5 {

class ImportForm;
class ImportTarget;

/// Shows a list of another program as it is read, what each of its columns is taken for, and where each of
/// its channels goes.
class dlgImport : public QDialog
{
    Q_OBJECT

  public:
    /// \param image  stays alive as long as the dialog
    dlgImport(const CloneImage& image, const QString& fileName, std::string bytes, QWidget* parent);

    const PastePlan& Plan() const { return plan_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QTableView* MakeSourceTable();
    void ReadList();
    void ShowAssignments();
    QComboBox* MakeFieldBox(int column);
    void cbbImportColumn_Click(int column, const QString& field);
    void ShowPlan();

    const CloneImage& image_;
    std::string bytes_;
    ListTable table_;
    std::vector<ListedChannel> channels_;
    PastePlan plan_;
    ListTableModel source_;
    PlanTableModel planned_;
    ImportForm* form_;
    ImportTarget* target_;
    QTableView* tblImportSource_;
    QLabel* lblImportSummary_;
    QPushButton* ok_;
};

}  // namespace rqm5
