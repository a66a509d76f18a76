#include "help/hit_delegate.h"

#include <QApplication>
#include <QPainter>

#include "ui/off_colour.h"

namespace rqm5 {
namespace {

constexpr int kMargin = 4;
constexpr int kTextRows = 2;

}  // namespace

void HitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString shown = index.data().toString();
    const QString title = shown.section(QLatin1Char('\n'), 0, 0);
    const QString text = shown.section(QLatin1Char('\n'), 1);
    if (text.isEmpty())
        return QStyledItemDelegate::paint(painter, option, index);
    item.text.clear();
    const QStyle& style = item.widget != nullptr ? *item.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool isSelected = (item.state & QStyle::State_Selected) != 0;
    const auto group = (item.state & QStyle::State_Active) != 0 ? QPalette::Active : QPalette::Inactive;
    QRect room = item.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QFont bold = item.font;
    bold.setBold(true);
    painter->save();
    painter->setFont(bold);
    painter->setPen(item.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    const QFontMetrics titleLine(bold);
    painter->drawText(room, Qt::AlignLeft | Qt::AlignTop,
                      titleLine.elidedText(title, Qt::ElideRight, room.width()));
    room.setTop(room.top() + titleLine.height());
    painter->setFont(item.font);
    painter->setPen(OffColour(item.palette, isSelected ? QPalette::Highlight : QPalette::Base, group));
    painter->drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text);
    painter->restore();
}

QSize HitDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!index.data().toString().contains(QLatin1Char('\n')))
        return QStyledItemDelegate::sizeHint(option, index);
    return {0, (1 + kTextRows) * option.fontMetrics.height() + 2 * kMargin};
}

}  // namespace rqm5
