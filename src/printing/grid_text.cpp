#include "printing/grid_text.h"

#include <QTextBoundaryFinder>

#include "image/display_text.h"

namespace rqm5 {
namespace {

bool IsAscii(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/// The end of the piece that begins at a position: a run of ASCII, whose characters are all of the same
/// width, or a single other character with what is combined with it.
qsizetype EndOfPiece(QTextBoundaryFinder& characters, const QString& line, qsizetype begin)
{
    characters.setPosition(begin);
    qsizetype end = characters.toNextBoundary();
    if (!IsAscii(QStringView(line).mid(begin, end - begin)))
        return end;
    for (qsizetype next = characters.toNextBoundary(); next > 0; next = characters.toNextBoundary()) {
        if (!IsAscii(QStringView(line).mid(end, next - end)))
            break;
        end = next;
    }
    return end;
}

}  // namespace

double CellWidth(const QFontMetricsF& metrics)
{
    // Over many characters, so that a device that rounds each of them shows.
    constexpr int kSample = 100;
    return metrics.horizontalAdvance(QString(kSample, QLatin1Char('0'))) / kSample;
}

void DrawOnGrid(QPainter& painter, QPointF origin, const QString& line, double cellWidth)
{
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, line);
    int column = 0;
    for (qsizetype begin = 0; begin < line.size();) {
        const qsizetype end = EndOfPiece(characters, line, begin);
        const QString piece = line.mid(begin, end - begin);
        painter.drawText(origin + QPointF(column * cellWidth, 0), piece);
        column += DisplayWidth(piece.toStdString());
        begin = end;
    }
}

}  // namespace rqm5
