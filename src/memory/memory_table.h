#pragma once

#include "memory/memory_table_model.h"
#include "ui/channel_table.h"

namespace rqm5 {

/// The memory channel table, MSFlexGrid1.
class MemoryTable : public ChannelTable
{
    Q_OBJECT

  public:
    MemoryTable(const CloneImage& image, QWidget* parent);

    /// Shows a group's rows and labels anew; the current row stays where it was, cut to the group.
    void UpDateMemData(int selector);

  signals:
    void InsertPressed();
    void DeletePressed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    MemoryTableModel model_;
};

}  // namespace rqm5
