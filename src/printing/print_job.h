#pragma once

#include <QObject>
#include <QPrinter>

#include "image/clone_image.h"
#include "printing/listing_printer.h"
#include "printing/print_dialog.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Does what the print dialog is told to: shows the preview, prints, writes the PDF.
class PrintJob : public QObject
{
    Q_OBJECT

  public:
    /// \param fileName  path of the current clone file, for the head of the pages; may be empty
    PrintJob(const CloneImage& image, const QString& fileName, Dialogs& dialogs, dlgPrint& dialog);

  private:
    void cmbPreview_Click();
    void cmbPrint_Click();
    void PrintToPdf();
    void PrintToPrinter();
    PrintEnd PrintOn(QPrinter& printer);
    void Refuse(const QString& reason);

    Listing ChosenListing() const;
    PageTitle Title() const;

    /// Empty when none is wanted.
    PagePicture Picture() const;

    const CloneImage& image_;
    QString fileName_;
    Dialogs& dialogs_;
    dlgPrint& dialog_;
};

/// File > Print: asks, and prints what was chosen.
void PrintImage(const CloneImage& image, const QString& fileName, Dialogs& dialogs, QWidget* parent);

}  // namespace rqm5
