#pragma once

#include "ui/channel_table.h"
#include "vfo/vfo_table_model.h"

namespace rqm5 {

/// The VFO band table, MSFlexGrid2.
class VfoTable : public ChannelTable
{
    Q_OBJECT

  public:
    VfoTable(const CloneImage& image, QWidget* parent);

    /// Shows the VFO rows anew; the current row stays.
    void UpdateVFOData();

  private:
    VfoTableModel model_;
};

}  // namespace rqm5
