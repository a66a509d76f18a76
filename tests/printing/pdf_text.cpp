#include "printing/pdf_text.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QXmlStreamReader>

namespace rqm5 {
namespace {

QByteArray Extract(const QString& path, const QString& how)
{
    QProcess extractor;
    extractor.start(QStringLiteral("pdftotext"), {how, path, QStringLiteral("-")});
    EXPECT_TRUE(extractor.waitForFinished()) << "pdftotext: " << extractor.errorString().toStdString();
    EXPECT_EQ(extractor.exitCode(), 0) << extractor.readAllStandardError().toStdString();
    return extractor.readAllStandardOutput();
}

double Number(const QXmlStreamReader& xml, const char* name)
{
    return xml.attributes().value(QLatin1String(name)).toDouble();
}

}  // namespace

QStringList PdfPages(const QString& path)
{
    return QString::fromUtf8(Extract(path, QStringLiteral("-layout")))
        .split(QLatin1Char('\f'), Qt::SkipEmptyParts);
}

std::vector<QRectF> PdfWords(const QString& path, QSizeF page)
{
    std::vector<QRectF> words;
    QXmlStreamReader xml(Extract(path, QStringLiteral("-bbox")));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("page")) {
            EXPECT_NEAR(Number(xml, "width"), page.width(), 1);
            EXPECT_NEAR(Number(xml, "height"), page.height(), 1);
        }
        if (xml.name() == QLatin1String("word"))
            words.emplace_back(QPointF(Number(xml, "xMin"), Number(xml, "yMin")),
                               QPointF(Number(xml, "xMax"), Number(xml, "yMax")));
    }
    return words;
}

}  // namespace rqm5
