#include "help/manual.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QMap>
#include <QTextBlock>
#include <algorithm>
#include <vector>

#include "help/about_facts.h"
#include "help/heading_anchors.h"
#include "help/help_topics.h"

namespace rqm5 {
namespace {

/// What a page offers to link to, and what it links to.
struct Links
{
    QStringList anchors;
    QStringList targets;
    QStringList images;
};

Links LinksOf(const QString& markdown)
{
    QTextDocument document;
    document.setMarkdown(markdown);
    Links links;
    links.anchors = AddHeadingAnchors(document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (!format.anchorHref().isEmpty())
                links.targets << format.anchorHref();
            if (format.isImageFormat())
                links.images << format.toImageFormat().name();
        }
    return links;
}

QMap<QString, Links> LinksOfAllPages()
{
    QMap<QString, Links> all;
    for (const ManualPage& page : ManualPages())
        all[page.file] = LinksOf(page.text);
    return all;
}

bool LeadsSomewhere(const QMap<QString, Links>& pages, const QString& from, const QString& target)
{
    const QString page = target.section(QLatin1Char('#'), 0, 0);
    const QString anchor = target.section(QLatin1Char('#'), 1);
    const auto found = pages.find(page.isEmpty() ? from : page);
    return found != pages.end() && (anchor.isEmpty() || found->anchors.contains(anchor));
}

TEST(Manual, EveryPageIsListedAndEveryLinkLeadsSomewhere)
{
    const auto pages = LinksOfAllPages();
    int links = 0;
    for (auto page = pages.begin(); page != pages.end(); ++page) {
        for (const QString& target : page->targets)
            EXPECT_TRUE(LeadsSomewhere(pages, page.key(), target))
                << qPrintable(QString(page.key() + QStringLiteral(" -> ") + target));
        for (const QString& image : page->images)
            EXPECT_TRUE(QFile::exists(QDir::cleanPath(QLatin1String(kManualFolder) + image)))
                << qPrintable(QString(page.key() + QStringLiteral(" shows ") + image));
        links += static_cast<int>(page->targets.size());
        EXPECT_EQ(page->anchors.size(), QSet<QString>(page->anchors.begin(), page->anchors.end()).size())
            << "two headings with one anchor in " << qPrintable(page.key());
    }
    EXPECT_GT(links, 40);
    EXPECT_EQ(pages.keys(), QDir(QLatin1String(kManualFolder)).entryList(QDir::Files, QDir::Name))
        << "a page is not in the contents";
}

TEST(Manual, EveryHelpTopicAndMessageHasItsPlace)
{
    const auto pages = LinksOfAllPages();
    QStringList topics = HelpTopics();
    for (const char* message :
         {"COM Port Error",
          "Communication Error",
          "Data Error",
          "File Open Error",
          "The write was cancelled.",
          "Save changes to settings?",
          "Clear cannot be undone.\nAre you sure that you want to do the clear?",
          "Delete cannot be undone.\nAre you sure that you want to do the delete?",
          "The total of the number of channels exceeds 1000.\nPlease set for the total",
          "It is a frequency of the cellular phone.\nIt is not possible to set it.",
          "The same frequency as other channels cannot be set in Search Pass bank.",
          "The file is saved, but a clone file cannot hold notes with a comma or quotes. While",
          "The file is written. A spreadsheet may run these notes as formulas.",
          "The file was changed by another program.",
          "The file was removed or renamed by another program.",
          "The file has more than one name.",
          "These notes keep the file from being opened.",
          "What was read from the receiver could not be saved. It was kept.",
          "The listing was not printed.",
          "The program ended before your changes were saved. They were kept.",
          "The receiver does not hold what was written. Write again.",
          "The receiver is another model. Write to it all the same?",
          "Write this backup to the receiver?",
          "Delete the selected backups? They",
          "Not every backup could be deleted.",
          "The banks would hold more than 1000 channels together.",
          "What the receiver holds must be read first.",
          "This link leads out of the manual. Open it in the web browser?"})
        topics << MessageTopic(QString::fromLatin1(message));
    for (const QString& topic : topics)
        EXPECT_TRUE(LeadsSomewhere(pages, {}, topic)) << qPrintable(topic);
}

/// What a translated page has to share with the English one.
struct Shape
{
    std::vector<int> levels = {};  ///< of its headings
    QStringList targets = {};
    QStringList images = {};
    int codeLines = 0;
};

Shape ShapeOf(const QString& markdown)
{
    QTextDocument document;
    document.setMarkdown(markdown);
    Shape shape;
    const Links links = LinksOf(markdown);
    shape.targets = QStringList(links.targets).replaceInStrings(QStringLiteral("../"), QString());
    shape.images = QStringList(links.images);
    for (QString& image : shape.images)  // each language has its own, of the same names
        image = image.section(QLatin1Char('/'), -1);
    shape.targets.sort();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0)
            shape.levels.push_back(block.blockFormat().headingLevel());
        shape.codeLines += block.blockFormat().hasProperty(QTextFormat::BlockCodeFence) ? 1 : 0;
    }
    return shape;
}

TEST(Manual, IsWholeInEachOfItsLanguages)
{
    constexpr int kWords = 8;  ///< a line of prose with more of them is in no two languages the same
    const QDir folder{QLatin1String(kManualFolder)};
    EXPECT_EQ(folder.entryList(QDir::Dirs, QDir::Name),
              (QStringList{QStringLiteral("de"), QStringLiteral("ja")}));
    for (const QString& language : folder.entryList(QDir::Dirs))
        for (const QString& name : folder.entryList(QDir::Files)) {
            QFile english(folder.filePath(name));
            QFile translated(folder.filePath(language + QLatin1Char('/') + name));
            ASSERT_TRUE(english.open(QIODevice::ReadOnly) && translated.open(QIODevice::ReadOnly))
                << qPrintable(name);
            const QString page = QString::fromUtf8(english.readAll());
            const Shape wanted = ShapeOf(page);
            const QString text = QString::fromUtf8(translated.readAll());
            const Shape shape = ShapeOf(text);
            const std::string what = translated.fileName().toStdString();
            for (const QString& image : shape.images)
                EXPECT_TRUE(
                    QFile::exists(QLatin1String(kPicturesFolder) + language + QLatin1Char('/') + image))
                    << what;
            EXPECT_EQ(shape.levels, wanted.levels) << what;
            EXPECT_EQ(shape.targets, wanted.targets) << what;
            EXPECT_EQ(shape.images, wanted.images) << what;
            EXPECT_EQ(shape.codeLines, wanted.codeLines) << what;
            EXPECT_NE(text.section(QLatin1Char('\n'), 0, 2), page.section(QLatin1Char('\n'), 0, 2)) << what;
            // Commands and texts of scripts are the same; prose is not.
            const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
            const auto same = std::ranges::count_if(lines, [&page](const QString& line) {
                return line.count(QLatin1Char(' ')) > kWords && page.contains(line);
            });
            EXPECT_LT(10 * same, lines.size()) << what;
            EXPECT_FALSE(text.contains(QLatin1String("{{"))) << what;
        }
}

TEST(Manual, ASearchWantsAllItsWordsAndPutsTitlesFirst)
{
    EXPECT_EQ(SearchManual(QStringLiteral("DIAGNOSTIC")).constFirst().file, QStringLiteral("diagnostics.md"));
    EXPECT_TRUE(SearchManual(QStringLiteral("print nosuchword")).isEmpty());
}

TEST(Manual, DialogsAndPagesHaveTheirOwnTopic)
{
    const std::pair<const char*, const char*> topics[] = {{"dlgPrint", "printing.md"},
                                                          {"dlgCOM", "ports.md"},
                                                          {"Frame1_0", "settings.md#settings-1"},
                                                          {"Frame1_1", "settings.md#settings-2"}};
    for (const auto& [name, topic] : topics)
        EXPECT_EQ(HelpTopic(QStringList{QString::fromLatin1(name)}), QLatin1String(topic));
}

TEST(AboutFacts, NameThePort)
{
    EXPECT_EQ(AboutFacts({}, 3, QStringLiteral("/dev/x")).constLast().value, QStringLiteral("COM 3, /dev/x"));
    EXPECT_EQ(AboutFacts({}, 3, {}).constLast().value, QStringLiteral("COM 3 (no device)"));
}

}  // namespace
}  // namespace rqm5
