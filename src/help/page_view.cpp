#include "help/page_view.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QImage>
#include <QTextFrame>
#include <QTextTable>
#include <algorithm>

#include "help/heading_anchors.h"

namespace rqm5 {
namespace {

constexpr int kSmallest = -4;
constexpr int kLargest = 16;
constexpr int kMargin = 12;  ///< around the page, pixels

/// Markdown tables come without room around their texts.
void StyleTables(QTextFrame& frame, const QColor& line)
{
    for (QTextFrame* child : frame.childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(child)) {
            QTextTableFormat format = table->format();
            format.setBorderCollapse(true);
            format.setBorder(1);
            format.setBorderBrush(line);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setCellPadding(4);
            format.setTopMargin(6);
            format.setBottomMargin(6);
            table->setFormat(format);
        }
        StyleTables(*child, line);
    }
}

}  // namespace

PageView::PageView(QWidget* parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    // Always there, so that the width of the page does not depend on its length.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    document()->setDocumentMargin(kMargin);
    connect(this, &QTextBrowser::sourceChanged, this, &PageView::Page_Loaded);
    connect(this, &QTextBrowser::anchorClicked, this, &PageView::Link_Clicked);
}

void PageView::ShowTopic(const QString& topic)
{
    setSource(QUrl(QStringLiteral("qrc:/help/manual/") + topic));
}

QString PageView::Page() const
{
    return source().fileName();
}

void PageView::Page_Loaded()
{
    AddHeadingAnchors(*document());
    SetPaletteColours();
    ShowMarks();
}

void PageView::doSetSource(const QUrl& url, QTextDocument::ResourceType type)
{
    QTextBrowser::doSetSource(url, type);
    if (!url.hasFragment())
        return;
    document()->documentLayout()->documentSize();  // finishes the layout, without which nothing scrolls
    scrollToAnchor(url.fragment());
}

QVariant PageView::loadResource(int type, const QUrl& name)
{
    const QVariant resource = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource)
        return resource;
    QImage image(QLatin1Char(':') + source().resolved(name).path());
    const int room = viewport()->width() - 2 * kMargin;
    if (image.width() <= room)
        return image;
    const qreal ratio = devicePixelRatioF();
    image = image.scaledToWidth(qRound(room * ratio), Qt::SmoothTransformation);
    image.setDevicePixelRatio(ratio);
    return image;
}

void PageView::SetPaletteColours()
{
    // A line that can be seen on a light page and on a dark one.
    QColor line = palette().color(QPalette::Text);
    line.setAlphaF(0.3F);
    StyleTables(*document()->rootFrame(), line);
}

void PageView::Link_Clicked(const QUrl& link)
{
    if (link.isRelative() || link.scheme() == QLatin1String("qrc"))
        setSource(source().resolved(link));
    else
        emit ExternalLinkClicked(link);
}

void PageView::MarkWords(const QStringList& words)
{
    words_ = words;
    ShowMarks();
}

void PageView::ShowMarks()
{
    // Paler than a selection, which is the place that the search has come to.
    QColor ground = palette().color(QPalette::Highlight);
    ground.setAlphaF(0.35F);
    QList<QTextEdit::ExtraSelection> marks;
    for (const QString& word : words_) {
        QTextCursor place(document());
        while (!(place = document()->find(word, place)).isNull()) {
            QTextCharFormat format;
            format.setBackground(ground);
            marks.append({place, format});
        }
    }
    setExtraSelections(marks);
}

void PageView::SetTextSize(int step)
{
    const int wanted = std::clamp(step, kSmallest, kLargest);
    zoomIn(wanted - textSize_);
    textSize_ = wanted;
}

void PageView::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty()) {
        SetPaletteColours();
        ShowMarks();
    }
}

}  // namespace rqm5
