#pragma once

#include <QFontMetricsF>
#include <QPainter>
#include <QString>

namespace rqm5 {

/// The width of one column in a fixed-pitch font.
double CellWidth(const QFontMetricsF& metrics);

/// Draws a line so that each character stands in its column, a wide one in two.
///
/// A fixed-pitch font borrows Japanese characters from another font, whose widths are not twice its own;
/// drawn as one text they would push all that follows out of its column.
/// \param origin  left end of the base line
void DrawOnGrid(QPainter& painter, QPointF origin, const QString& line, double cellWidth);

}  // namespace rqm5
