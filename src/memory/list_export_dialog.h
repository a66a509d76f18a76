#pragma once

#include <QDialog>

#include "files/list_file.h"

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace rqm5 {

/// What goes into a list for spreadsheets: which groups, which columns, which decimal sign.
class dlgExportList : public QDialog
{
    Q_OBJECT

  public:
    dlgExportList(const CloneImage& image, QWidget* parent);

    ListChoice Choice() const;

  private:
    void FillGroups();
    void FillColumns();
    void ShowState();

    const CloneImage& image_;
    QListWidget* lstExportGroups_;
    QListWidget* lstExportColumns_;
    QComboBox* cbbExportDecimal_;
    QLabel* lblExportSummary_;
    QPushButton* ok_;
};

}  // namespace rqm5
