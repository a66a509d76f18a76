#pragma once

#include <QPageLayout>
#include <QString>
#include <optional>

#include "image/problem.h"
#include "printing/listing_printer.h"

namespace rqm5 {

struct PdfOutcome
{
    PrintEnd end = PrintEnd::Done;
    std::optional<Problem> problem = {};  ///< why it failed
};

/// Saves a listing as a PDF: the whole of it, or the file stays as it was.
PdfOutcome SavePdf(const QString& path, const QPageLayout& pageLayout, const Listing& listing,
                   const PageTitle& title, const PageProgress& progress, const PagePicture& picture = {});

}  // namespace rqm5
