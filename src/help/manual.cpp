#include "help/manual.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>

namespace rqm5 {
namespace {

constexpr int kTitleWeight = 1000;  ///< a word in a title counts more than any number in the text

ManualPage LoadPage(const QString& fileName)
{
    QFile file(QLatin1String(kManualFolder) + fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression heading(QStringLiteral("^# (.+)$"), QRegularExpression::MultilineOption);
    QTextDocument page;
    page.setMarkdown(text);
    return {fileName, heading.match(text).captured(1), text,
            page.toPlainText().section(QLatin1Char('\n'), 1)};
}

QList<ManualPage> LoadPages()
{
    QList<ManualPage> pages = {LoadPage(QStringLiteral("index.md"))};
    static const QRegularExpression link(QStringLiteral("\\]\\(([a-z-]+\\.md)\\)"));
    auto found = link.globalMatch(pages.first().text);
    while (found.hasNext())
        pages << LoadPage(found.next().captured(1));
    return pages;
}

/// 0 when a word is missing.
int Weight(const ManualPage& page, const QStringList& words)
{
    int weight = 0;
    for (const QString& word : words) {
        const auto count = page.text.count(word, Qt::CaseInsensitive);
        if (count == 0)
            return 0;
        weight += static_cast<int>(count);
        if (page.title.contains(word, Qt::CaseInsensitive))
            weight += kTitleWeight;
    }
    return weight;
}

}  // namespace

const QList<ManualPage>& ManualPages()
{
    static const QList<ManualPage> pages = LoadPages();
    return pages;
}

QString LineAround(const ManualPage& page, const QStringList& words)
{
    constexpr qsizetype kBefore = 16;
    constexpr qsizetype kLength = 70;
    const QString& text = page.plain;
    qsizetype place = text.size();
    for (const QString& word : words)
        if (const auto found = text.indexOf(word, 0, Qt::CaseInsensitive); found >= 0)
            place = std::min(place, found);
    if (place == text.size())
        place = 0;
    // Whole words of one paragraph. Pictures stand in the text as a character of their own.
    const auto paragraph = place == 0 ? 0 : text.lastIndexOf(QLatin1Char('\n'), place - 1) + 1;
    auto start = std::max(paragraph, place - kBefore);
    if (start > paragraph)
        start = std::min(place, text.indexOf(QLatin1Char(' '), start) + 1);
    QString line =
        text.mid(start, kLength).section(QLatin1Char('\n'), 0, 0).remove(QChar::ObjectReplacementCharacter);
    if (line.size() == kLength)
        line = line.left(line.lastIndexOf(QLatin1Char(' '))) + QStringLiteral(" …");
    return (start > paragraph ? QStringLiteral("… ") : QString()) + line.simplified();
}

QStringList QueryWords(const QString& query)
{
    return query.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QList<ManualPage> SearchManual(const QString& query)
{
    const QStringList words = QueryWords(query);
    QList<std::pair<int, ManualPage>> weighed;
    for (const ManualPage& page : ManualPages())
        if (const int weight = Weight(page, words); weight > 0)
            weighed.emplaceBack(weight, page);
    std::stable_sort(weighed.begin(), weighed.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    QList<ManualPage> pages;
    for (const auto& entry : weighed)
        pages << entry.second;
    return pages;
}

}  // namespace rqm5
