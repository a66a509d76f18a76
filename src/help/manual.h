#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace rqm5 {

/// A page of the manual, which is compiled into the program, in the program's language; in English where it
/// was not translated.
struct ManualPage
{
    QString file;  ///< "first-steps.md", the same in every language
    QString title;
    QString text;   ///< Markdown
    QString plain;  ///< the same without its marks, a paragraph a line, the title left out

    /// Where links lead to in it: of each heading the anchor that it has in English.
    QStringList anchors;
};

/// Where the manual lies among the program's resources, other languages in folders of their own; and its
/// pictures.
inline constexpr char kManualFolder[] = ":/help/manual/";
inline constexpr char kPicturesFolder[] = ":/help/images/";

/// Every page, in the order in which the contents page links to them; the contents page is the first.
const QList<ManualPage>& ManualPages();

/// The page of a file; nothing for a file that is none of the manual's.
const ManualPage* PageOfFile(const QString& file);

/// The pages that hold every one of the words, in any letter case, those with a word in their title
/// first, then those that use the words most. Empty for a query without a word.
QList<ManualPage> SearchManual(const QString& query);

/// A line of a page's text around the first place of one of the words; of a page that has them in its title
/// alone, the beginning.
QString LineAround(const ManualPage& page, const QStringList& words);

/// The words of a query: what blanks separate. A language that writes without them is matched as it stands.
QStringList QueryWords(const QString& query);

}  // namespace rqm5
