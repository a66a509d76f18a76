#include "help/heading_anchors.h"

#include <QTextBlock>
#include <QTextCursor>

namespace rqm5 {

QString AnchorOf(const QString& heading)
{
    QString anchor;
    for (const QChar c : heading.toLower()) {
        if (c == QLatin1Char(' '))
            anchor += QLatin1Char('-');
        else if (c.isLetterOrNumber() || c == QLatin1Char('-') || c == QLatin1Char('_'))
            anchor += c;
    }
    return anchor;
}

QStringList AddHeadingAnchors(QTextDocument& document, const QStringList& given)
{
    QStringList anchors;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0)
            continue;
        anchors << given.value(anchors.size(), AnchorOf(block.text()));
        QTextCharFormat format;
        format.setAnchor(true);
        format.setAnchorNames({anchors.last()});
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    }
    return anchors;
}

}  // namespace rqm5
