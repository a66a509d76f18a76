#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <functional>

#include "printing/page_layout.h"

namespace rqm5 {

/// Told before each page goes out; false stops the printing.
using PageProgress = std::function<bool(int page, int pages)>;

enum class PrintEnd { Done, Cancelled, Failed };

/// Paints what has a page of its own behind the listing.
using PagePicture = std::function<void(QPainter& painter, const QRectF& area)>;

/// Prints a listing on the pages of a device (a printer, a preview, a PDF), with the paper and the
/// orientation set there.
///
/// The font is of fixed pitch, and small enough that the widest line fits between the margins.
/// \return Failed when the device cannot be painted on or takes no further page
PrintEnd PrintListing(QPagedPaintDevice& device, const Listing& listing, const PageTitle& title,
                      const PageProgress& progress, const PagePicture& picture = {});

/// How a PDF is laid out when nobody chose: A4, Letter where inches are used; portrait.
QPageLayout DefaultPageLayout();

}  // namespace rqm5
