#pragma once

#include <QWidget>

#include "files/list_form.h"

class QCheckBox;
class QComboBox;
class QPushButton;

namespace rqm5 {

/// How a list is written: what was found out, and what somebody says instead. A way of reading can be kept
/// under a name.
class ImportForm : public QWidget
{
    Q_OBJECT

  public:
    explicit ImportForm(QWidget* parent);

    const ListForm& Form() const { return form_; }

    /// Says what each column holds.
    void Assign(const std::vector<ColumnWish>& columns);

    /// Shows how a list was read with the form.
    void ShowTable(const ListTable& table);

  signals:
    void Changed();  ///< the list is to be read again

  private:
    void FillMappings();
    void TakeChoices();
    void ShowMappingState();
    void cbbImportMapping_Click();
    void cmbImportKeep_Click();
    void cmbImportForget_Click();

    ListForm form_;
    ListForm found_;  ///< the form that says everything of the list as it was read last
    QComboBox* cbbImportEncoding_;
    QComboBox* cbbImportDelimiter_;
    QComboBox* cbbImportDecimal_;
    QCheckBox* chkImportTitles_;
    QComboBox* cbbImportMapping_;
    QPushButton* cmbImportKeep_;
    QPushButton* cmbImportForget_;
};

}  // namespace rqm5
