#include "printing/pdf_file.h"

#include <QBuffer>
#include <QPdfWriter>

#include "files/file_store.h"
#include "image/value_tables.h"

namespace rqm5 {

PdfOutcome MakePdf(QByteArray& pdf, const QPageLayout& pageLayout, const Listing& listing,
                   const PageTitle& title, const PageProgress& progress, const PagePicture& picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(pageLayout);
    writer.setTitle(QString::fromStdString(title.fileName));
    writer.setCreator(QString::fromUtf8(AppTitle.data(), static_cast<qsizetype>(AppTitle.size())));
    const PrintEnd end = PrintListing(writer, listing, title, progress, picture);
    if (end == PrintEnd::Failed)
        return {end, Problem{kFileOpenError,
                             MESSAGE("The pages could not be made; there may be too little memory.")}};
    if (end == PrintEnd::Done)
        pdf = buffer.data();
    return {end};
}

PdfOutcome SavePdf(const QString& path, const QPageLayout& pageLayout, const Listing& listing,
                   const PageTitle& title, const PageProgress& progress, const PagePicture& picture)
{
    // Made in memory first: a disk that fills up on the way, or a cancel, leaves no half file.
    QByteArray pdf;
    const PdfOutcome made = MakePdf(pdf, pageLayout, listing, title, progress, picture);
    if (made.end != PrintEnd::Done)
        return made;
    std::optional<Problem> problem = WriteWholeFile(path, pdf.toStdString());
    return {problem ? PrintEnd::Failed : PrintEnd::Done, std::move(problem)};
}

}  // namespace rqm5
