#pragma once

#include <QStyledItemDelegate>

namespace rqm5 {

/// Paints an entry of two lines as a title and, below it, smaller in weight, a piece of text in two rows at
/// most. An entry of one line is painted as ever.
class HitDelegate : public QStyledItemDelegate
{
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace rqm5
