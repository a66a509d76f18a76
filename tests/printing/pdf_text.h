#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QRectF>
#include <QXmlStreamReader>

namespace rqm5 {

/// What pdftotext makes of a PDF.
inline QByteArray PdfText(const QString& path, const char* how)
{
    QProcess extractor;
    extractor.start(QStringLiteral("pdftotext"), {QLatin1String(how), path, QStringLiteral("-")});
    EXPECT_TRUE(extractor.waitForFinished()) << "pdftotext: " << extractor.errorString().toStdString();
    EXPECT_EQ(extractor.exitCode(), 0) << extractor.readAllStandardError().toStdString();
    return extractor.readAllStandardOutput();
}

/// The text of each page of a PDF, laid out as on the page.
inline QStringList PdfPages(const QString& path)
{
    return QString::fromUtf8(PdfText(path, "-layout")).split(QLatin1Char('\f'), Qt::SkipEmptyParts);
}

/// The smallest rectangle that holds all words of all pages, in points from the upper left corner. Fails
/// the test when a page is not of this size.
inline QRectF PdfWords(const QString& path, QSizeF page)
{
    QRectF words;
    QXmlStreamReader xml(PdfText(path, "-bbox"));
    const auto number = [&xml](const char* name) {
        return xml.attributes().value(QLatin1String(name)).toDouble();
    };
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("page")) {
            EXPECT_NEAR(number("width"), page.width(), 1);
            EXPECT_NEAR(number("height"), page.height(), 1);
        }
        if (xml.name() == QLatin1String("word"))
            words |= QRectF(QPointF(number("xMin"), number("yMin")), QPointF(number("xMax"), number("yMax")));
    }
    return words;
}

}  // namespace rqm5
