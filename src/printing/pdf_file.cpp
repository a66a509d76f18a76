#include "printing/pdf_file.h"

#include <QBuffer>
#include <QPdfWriter>

#include "files/file_store.h"
#include "image/value_tables.h"

namespace rqm5 {

PdfOutcome SavePdf(const QString& path, const QPageLayout& pageLayout, const Listing& listing,
                   const PageTitle& title, const PageProgress& progress, const PagePicture& picture)
{
    // Made in memory first: a disk that fills up on the way, or a cancel, leaves no half file.
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(pageLayout);
    writer.setTitle(QString::fromStdString(title.fileName));
    writer.setCreator(QString::fromUtf8(AppTitle.data(), static_cast<qsizetype>(AppTitle.size())));
    const PrintEnd end = PrintListing(writer, listing, title, progress, picture);
    if (end == PrintEnd::Failed)
        return {end, Problem{kFileOpenError, "The pages could not be made; there may be too little memory."}};
    if (end == PrintEnd::Cancelled)
        return {end};
    std::optional<Problem> problem = WriteWholeFile(path, buffer.data().toStdString());
    return {problem ? PrintEnd::Failed : PrintEnd::Done, std::move(problem)};
}

}  // namespace rqm5
