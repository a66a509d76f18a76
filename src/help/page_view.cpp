#include "help/page_view.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QFile>
#include <QImage>
#include <QScrollBar>
#include <QTextFrame>
#include <QTextTable>
#include <algorithm>

#include "help/heading_anchors.h"
#include "help/manual.h"
#include "language/language.h"

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

void PageView::Page_Loaded(const QUrl& url)
{
    // source() is still the page before.
    const ManualPage* page = PageOfFile(url.fileName());
    AddHeadingAnchors(*document(), page != nullptr ? page->anchors : QStringList());
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
    if (type == QTextDocument::ImageResource)
        return Picture(name.fileName());
    const ManualPage* page = PageOfFile(name.fileName());
    return page != nullptr ? page->text : QTextBrowser::loadResource(type, name);
}

QVariant PageView::Picture(const QString& file) const
{
    const QLatin1String folder(kPicturesFolder);
    const QString translated = folder + Language::OfProgram().Code() + QLatin1Char('/') + file;
    QImage image(QFile::exists(translated) ? translated : folder + file);
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
    if (!link.isRelative() && link.scheme() != QLatin1String("qrc"))
        emit ExternalLinkClicked(link);
    else if (link.fileName().isEmpty())
        setSource(source().resolved(link));
    else  // a page that is not translated is in another folder where these files are shown on the web
        ShowTopic(link.fileName() + (link.hasFragment() ? QLatin1Char('#') + link.fragment() : QString()));
}

/// What stands at the top: how many headings have begun, and how many blocks ago the last one did.
PageView::Place PageView::PlaceAtTop() const
{
    const QTextBlock first = cursorForPosition({0, 0}).block();
    const int top = first.blockNumber();
    const QRectF shape = document()->documentLayout()->blockBoundingRect(first);
    Place place;
    if (shape.height() > 0)
        place.scrolled = std::clamp((verticalScrollBar()->value() - shape.top()) / shape.height(), 0.0, 1.0);
    for (QTextBlock block = document()->begin(); block.isValid() && block.blockNumber() <= top;
         block = block.next()) {
        ++place.blocks;
        if (block.blockFormat().headingLevel() > 0) {
            ++place.headings;
            place.blocks = 0;
        }
    }
    return place;
}

/// A page has the same headings in every language; below one of them another number of blocks may stand.
QTextBlock PageView::BlockAt(const Place& place) const
{
    QTextBlock block = document()->begin();
    for (int headings = 0; block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() > 0 && ++headings == place.headings)
            break;
    for (int i = 0; i < place.blocks && block.next().isValid(); ++i) {
        if (block.next().blockFormat().headingLevel() > 0)
            break;
        block = block.next();
    }
    return block;
}

void PageView::ShowLanguage()
{
    if (source().isEmpty())
        return;
    const bool isAtTop = verticalScrollBar()->value() == 0;
    const Place place = PlaceAtTop();
    reload();
    document()->documentLayout()->documentSize();  // finishes the layout, without which nothing scrolls
    const QTextBlock block = BlockAt(place);
    const QRectF shape = document()->documentLayout()->blockBoundingRect(block);
    const bool isKnown = !isAtTop && place.headings > 0 && block.isValid();
    verticalScrollBar()->setValue(isKnown ? static_cast<int>(shape.top() + place.scrolled * shape.height())
                                          : 0);
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
