#pragma once

#include "image/clone_image.h"
#include "ui/channel_table_model.h"

namespace rqm5 {

/// The fourteen VFO bands as the selected model region shows them.
class VfoTableModel : public ChannelTableModel
{
    Q_OBJECT

  public:
    VfoTableModel(const CloneImage& image, QObject* parent);

    void UpdateVFOData();

  protected:
    std::string Cell(int row, Column column) const override;

  private:
    const CloneImage& image_;
};

}  // namespace rqm5
