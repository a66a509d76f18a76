#include "help/manual.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>
#include <map>

#include "help/heading_anchors.h"
#include "language/language.h"

namespace rqm5 {
namespace {

constexpr int kTitleWeight = 1000;  ///< a word in a title counts more than any number in the text

QString TextOf(const QString& path)
{
    QFile file(QLatin1String(kManualFolder) + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

ManualPage LoadPage(const QString& fileName, const QString& text)
{
    static const QRegularExpression heading(QStringLiteral("^# (.+)$"), QRegularExpression::MultilineOption);
    QTextDocument page;
    page.setMarkdown(text);
    return {fileName, heading.match(text).captured(1), text, page.toPlainText().section(QLatin1Char('\n'), 1),
            AddHeadingAnchors(page)};
}

QList<ManualPage> LoadPages()
{
    const QString index = QStringLiteral("index.md");
    QList<ManualPage> pages = {LoadPage(index, TextOf(index))};
    static const QRegularExpression link(QStringLiteral("\\]\\(([a-z-]+\\.md)\\)"));
    auto found = link.globalMatch(pages.first().text);
    while (found.hasNext()) {
        const QString file = found.next().captured(1);
        pages << LoadPage(file, TextOf(file));
    }
    return pages;
}

/// The same pages in another language, as far as they are translated.
QList<ManualPage> Translations(const QList<ManualPage>& english, const QString& language)
{
    QList<ManualPage> pages = english;
    for (ManualPage& page : pages)
        if (const QString text = TextOf(language + QLatin1Char('/') + page.file); !text.isEmpty()) {
            const QStringList anchors = page.anchors;
            page = LoadPage(page.file, text);
            page.anchors = anchors;
        }
    return pages;
}

/// Whether a letter is of a script that separates its words; others can be cut anywhere.
bool IsOfWords(QChar letter)
{
    constexpr char16_t kFirstIdeographs = 0x2E80;
    return letter.unicode() < kFirstIdeographs;
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
    static const QList<ManualPage> english = LoadPages();
    static std::map<QString, QList<ManualPage>> translations;
    const auto [pages, isNew] = translations.try_emplace(Language::OfProgram().Code());
    if (isNew)
        pages->second = Translations(english, pages->first);
    return pages->second;
}

const ManualPage* PageOfFile(const QString& file)
{
    const QList<ManualPage>& pages = ManualPages();
    const auto page = std::ranges::find(pages, file, &ManualPage::file);
    return page != pages.end() ? &*page : nullptr;
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
    if (const auto blank = text.indexOf(QLatin1Char(' '), start); start > paragraph)
        start = blank >= 0 && blank < place ? blank + 1 : IsOfWords(text[start]) ? place : start;
    QString line =
        text.mid(start, kLength).section(QLatin1Char('\n'), 0, 0).remove(QChar::ObjectReplacementCharacter);
    if (line.size() == kLength) {
        const auto blank = line.lastIndexOf(QLatin1Char(' '));
        line = line.left(blank > kLength * 2 / 3 ? blank : kLength) + QStringLiteral(" …");
    }
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
