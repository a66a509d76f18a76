#include "memory/channel_delegate.h"

#include <QPainter>

#include "ui/off_colour.h"

namespace rqm5 {

ChannelDelegate::ChannelDelegate(const CloneImage& image, const MemoryTableModel& model, QObject* parent)
    : CellDelegate(image, model, parent), model_(model)
{
}

void ChannelDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    CellDelegate::initStyleOption(option, index);
    if (model_.IsEnabled(index.row()) || (option->state & QStyle::State_Selected) == 0)
        return;
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        option->palette.setColor(group, QPalette::HighlightedText,
                                 OffColour(option->palette, QPalette::Highlight, group));
}

void ChannelDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    cell.state &= ~QStyle::State_HasFocus;
    CellDelegate::paint(painter, cell, index);
    if ((option.state & QStyle::State_HasFocus) == 0)
        return;
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
}

}  // namespace rqm5
