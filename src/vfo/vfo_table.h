#pragma once

#include "document/document.h"
#include "ui/channel_table.h"
#include "vfo/vfo_table_model.h"

namespace rqm5 {

/// The VFO band table, MSFlexGrid2. It shows every change of a band or of the model region; the current row
/// stays.
class VfoTable : public ChannelTable
{
    Q_OBJECT

  public:
    VfoTable(const Document& document, QWidget* parent);

  private:
    void UpdateVFOData();

    VfoTableModel model_;
};

}  // namespace rqm5
