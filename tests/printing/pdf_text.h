#pragma once

#include <QRectF>
#include <QString>
#include <QStringList>
#include <vector>

namespace rqm5 {

/// The text of each page of a PDF, laid out as on the page.
QStringList PdfPages(const QString& path);

/// Where the words of a PDF stand, in points from the upper left corner of their page. Fails the test
/// when a page is not of this size.
std::vector<QRectF> PdfWords(const QString& path, QSizeF page);

}  // namespace rqm5
