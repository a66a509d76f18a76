#pragma once

#include "memory/cell_delegate.h"

namespace rqm5 {

/// Lets a disabled row look disabled while it is selected too: the selection has a text colour of its own,
/// and the row that was just switched off is the selected one. Frames the cell that typing edits, which not
/// every style shows in a selected row.
class ChannelDelegate : public CellDelegate
{
    Q_OBJECT

  public:
    ChannelDelegate(const CloneImage& image, const MemoryTableModel& model, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  private:
    const MemoryTableModel& model_;
};

}  // namespace rqm5
