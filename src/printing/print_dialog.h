#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPageLayout>
#include <QPushButton>
#include <QStringList>

#include "printing/listing.h"

namespace rqm5 {

/// Asks what to print, on which paper and where to. It prints nothing itself.
class dlgPrint : public QDialog
{
    Q_OBJECT

  public:
    /// \param printers  names of the printers to choose from, the proposed one first; without any, a PDF
    ///   is proposed
    dlgPrint(const QStringList& printers, QWidget* parent);

    ListingChoice Choice() const;

    /// A page with the spectrum of all channels is wanted behind the listing.
    bool HasSpectrum() const { return chkPrintSpectrum_->isChecked(); }

    QPageLayout Layout() const;

    /// Shows paper and orientation chosen elsewhere; a paper that is not on offer changes nothing.
    void ShowLayout(const QPageLayout& layout);

    bool IsPdf() const;
    QString Printer() const;  ///< empty when there is none

  signals:
    void PreviewRequested();
    void PrintRequested();

  private:
    QWidget* ContentsBox();
    QWidget* PaperBox();
    QWidget* TargetBox(const QStringList& printers);
    QWidget* Buttons();
    void ShowPossible();

    QCheckBox* chkPrintSettings_;
    QCheckBox* chkPrintVfo_;
    QCheckBox* chkPrintMemory_;
    QComboBox* cbbPrintGroup_;
    QCheckBox* chkSkipEmpty_;
    QCheckBox* chkPrintSpectrum_;
    QComboBox* cbbPaper_;
    QButtonGroup* opbOrientation_;
    QButtonGroup* opbPrintTo_;
    QComboBox* cbbPrinter_;
    QPushButton* cmbPreview_;
    QPushButton* cmbPrint_;
};

}  // namespace rqm5
