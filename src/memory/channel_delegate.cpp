#include "memory/channel_delegate.h"

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

}  // namespace rqm5
