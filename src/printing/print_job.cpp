#include "printing/print_job.h"

#include <QAction>
#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QPrintPreviewDialog>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QScreen>

#include "printing/pdf_file.h"
#include "spectrum/spectrum_file.h"
#include "ui/error_prompt.h"

namespace rqm5 {
namespace {

constexpr int kMillisecondsWithoutProgress = 500;
constexpr QSize kPreviewSize(900, 800);

/// Keeps a box with the pages that are done, and its Cancel button, in front of a window.
class ProgressBox
{
  public:
    explicit ProgressBox(QWidget& window)
        : box_(PrintJob::tr("Printing..."), PrintJob::tr("Cancel"), 0, 1, &window)
    {
        box_.setWindowTitle(PrintJob::tr("Print"));
        box_.setWindowModality(Qt::WindowModal);
        box_.setMinimumDuration(kMillisecondsWithoutProgress);
    }

    PageProgress Progress()
    {
        return [this](int page, int pages) {
            box_.setMaximum(pages);
            box_.setLabelText(PrintJob::tr("Page %1 of %2").arg(page + 1).arg(pages));
            box_.setValue(page);
            return !box_.wasCanceled();
        };
    }

  private:
    QProgressDialog box_;
};

/// The preview's own Print button knows neither the chosen printer nor how to write a PDF safely, and
/// its page setup offers paper that the dialog does not have.
void TakeOverPrint(QPrintPreviewDialog& preview, const std::function<void()>& print)
{
    for (QAction* action : preview.findChildren<QAction*>()) {
        if (action->text() == QCoreApplication::translate("QPrintPreviewDialog", "Page setup"))
            action->setVisible(false);
        if (action->text() != QCoreApplication::translate("QPrintPreviewDialog", "Print"))
            continue;
        action->disconnect();
        QObject::connect(action, &QAction::triggered, &preview, print);
    }
}

}  // namespace

PrintJob::PrintJob(const CloneImage& image, const QString& fileName, Dialogs& dialogs, dlgPrint& dialog)
    : image_(image), fileName_(fileName), dialogs_(dialogs), dialog_(dialog)
{
    connect(&dialog, &dlgPrint::PreviewRequested, this, &PrintJob::cmbPreview_Click);
    connect(&dialog, &dlgPrint::PrintRequested, this, &PrintJob::cmbPrint_Click);
}

Listing PrintJob::ChosenListing() const
{
    return BuildListing(image_, dialog_.Choice());
}

PageTitle PrintJob::Title() const
{
    // As the rest of the page, in every language.
    const QString name =
        fileName_.isEmpty() ? QStringLiteral("(not saved)") : QFileInfo(fileName_).fileName();
    return {name.toStdString(), QDate::currentDate().toString(Qt::ISODate).toStdString()};
}

PagePicture PrintJob::Picture() const
{
    if (!dialog_.HasSpectrum())
        return {};
    return [this](QPainter& painter, const QRectF& area) { PaintSpectrumPage(painter, area, image_); };
}

void PrintJob::cmbPreview_Click()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(dialog_.Layout());
    QPrintPreviewDialog preview(&printer, &dialog_);
    connect(&preview, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* paper) {
        PrintListing(
            *paper, ChosenListing(), Title(), [](int, int) { return true; }, Picture());
    });
    preview.resize(kPreviewSize.boundedTo(dialog_.screen()->availableSize()));
    bool printsNow = false;
    TakeOverPrint(preview, [&preview, &printsNow] {
        printsNow = true;
        preview.accept();
    });
    dialogs_.Run(preview);
    dialog_.ShowLayout(printer.pageLayout());
    if (printsNow)
        cmbPrint_Click();
}

void PrintJob::cmbPrint_Click()
{
    if (dialog_.IsPdf())
        PrintToPdf();
    else
        PrintToPrinter();
}

void PrintJob::PrintToPdf()
{
    const QFileInfo file(fileName_.isEmpty() ? QStringLiteral("RQ-M5") : fileName_);
    const QString suggested = QDir(file.path()).filePath(file.completeBaseName() + QStringLiteral(".pdf"));
    const QString path = dialogs_.ChooseFile(&dialog_, FileChoice::SavePdf, suggested);
    if (path.isEmpty())
        return;
    const PdfOutcome outcome = [this, &path] {
        // Gone before anything is asked: it would pop up over the question.
        ProgressBox box(dialog_);
        return SavePdf(path, dialog_.Layout(), ChosenListing(), Title(), box.Progress(), Picture());
    }();
    if (outcome.problem)
        dialogs_.Ask(&dialog_, ErrorPrompt(*outcome.problem));
    if (outcome.end == PrintEnd::Done)
        dialog_.accept();
}

void PrintJob::PrintToPrinter()
{
    const QString name = dialog_.Printer();
    if (name.isEmpty()) {
        Refuse(
            tr("No printer is installed. Install one in the settings of the system, or print to a PDF "
               "file."));
        return;
    }
    const QPrinterInfo info = QPrinterInfo::printerInfo(name);
    if (info.isNull()) {
        Refuse(
            tr("There is no printer \"%1\" any more. Choose another one, or print to a PDF file.").arg(name));
        return;
    }
    QPrinter printer(info, QPrinter::HighResolution);
    const PrintEnd end = printer.isValid() ? PrintOn(printer) : PrintEnd::Failed;
    if (end == PrintEnd::Failed)
        Refuse(tr("The printer \"%1\" does not take the pages. Check that it is switched on and connected, "
                  "choose another one, or print to a PDF file.")
                   .arg(name));
    if (end == PrintEnd::Done)
        dialog_.accept();
}

PrintEnd PrintJob::PrintOn(QPrinter& printer)
{
    const PageTitle title = Title();
    printer.setPageLayout(dialog_.Layout());
    printer.setDocName(QString::fromStdString(title.fileName));
    ProgressBox box(dialog_);
    const PageProgress progress = box.Progress();
    const auto goesOn = [&printer, &progress](int page, int pages) {
        const bool isWanted = progress(page, pages);
        if (!isWanted)
            printer.abort();
        return isWanted;
    };
    return PrintListing(printer, ChosenListing(), title, goesOn, Picture());
}

void PrintJob::Refuse(const QString& reason)
{
    dialogs_.Ask(&dialog_, {tr("ERROR"), tr("The listing was not printed."), reason});
}

void PrintImage(const CloneImage& image, const QString& fileName, Dialogs& dialogs, QWidget* parent)
{
    QStringList printers = QPrinterInfo::availablePrinterNames();
    if (const QString usual = QPrinterInfo::defaultPrinterName(); printers.removeOne(usual))
        printers.prepend(usual);
    dlgPrint dialog(printers, parent);
    const PrintJob job(image, fileName, dialogs, dialog);
    dialogs.Run(dialog);
}

}  // namespace rqm5
