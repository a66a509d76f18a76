#pragma once

#include <QDialog>

#include "files/csv_findings.h"

namespace rqm5 {

/// What an import read otherwise than it stands in the file, line by line. It offers to read the file again
/// when numbers have a decimal comma.
class dlgImportDetails : public QDialog
{
    Q_OBJECT

  public:
    dlgImportDetails(const QString& fileName, const CsvFindings& findings, QWidget* parent);

    /// True when the file is to be read again with decimal commas.
    bool WantsCommas() const { return wantsCommas_; }

  private:
    bool wantsCommas_ = false;
};

}  // namespace rqm5
