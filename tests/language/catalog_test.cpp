#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <set>
#include <vector>

#include "language/language.h"

namespace rqm5 {
namespace {

struct Entry
{
    QString source;
    QString translation;
    bool isFinished = true;
};

std::vector<Entry> EntriesOf(const QString& code)
{
    QFile file(QStringLiteral(RQM5_CATALOGS "/rq-m5_%1.ts").arg(code));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << code.toStdString();
    QXmlStreamReader xml(&file);
    std::vector<Entry> entries;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("source"))
            entries.push_back({xml.readElementText(), {}});
        else if (xml.name() == QLatin1String("translation")) {
            entries.back().isFinished = xml.attributes().value(QLatin1String("type")).isEmpty();
            entries.back().translation = xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return entries;
}

std::set<QString> Places(const QString& text)
{
    static const QRegularExpression place(QStringLiteral("%\\d"));
    std::set<QString> places;
    auto found = place.globalMatch(text);
    while (found.hasNext())
        places.insert(found.next().captured());
    return places;
}

/// A letter for the Alt key: "&File", not "R && D".
int Letters(const QString& text)
{
    static const QRegularExpression letter(QStringLiteral("&(?=[^&\\s])"));
    return static_cast<int>(QString(text).remove(QStringLiteral("&&")).count(letter));
}

TEST(Catalogs, AreWholeAndKeepPlacesLettersAndDots)
{
    std::set<QString> expected;
    for (const LanguageName& language : Languages()) {
        if (language.code == std::string("en"))
            continue;
        expected.insert(QStringLiteral("rq-m5_%1.ts").arg(QLatin1String(language.code)));
        const std::vector<Entry> entries = EntriesOf(QLatin1String(language.code));
        EXPECT_GT(entries.size(), 1000U);
        for (const Entry& entry : entries) {
            const std::string what = std::string(language.code) + ": " + entry.source.toStdString();
            EXPECT_TRUE(entry.isFinished && !entry.translation.trimmed().isEmpty()) << what;
            EXPECT_EQ(Places(entry.source), Places(entry.translation)) << what;
            EXPECT_EQ(Letters(entry.source), Letters(entry.translation)) << what;
            EXPECT_EQ(entry.source.endsWith(QLatin1String("...")),
                      entry.translation.endsWith(QLatin1String("...")))
                << what;
        }
    }
    const QStringList found = QDir(QStringLiteral(RQM5_CATALOGS)).entryList({QStringLiteral("*.ts")});
    EXPECT_EQ(std::set<QString>(found.begin(), found.end()), expected)
        << "each file is a language that can be chosen";
}

}  // namespace
}  // namespace rqm5
