#include "vfo/vfo_table_model.h"

#include "vfo/vfo_cells.h"

namespace rqm5 {

VfoTableModel::VfoTableModel(const CloneImage& image, QObject* parent)
    : ChannelTableModel(kVfoTitles, parent), image_(image)
{
    UpdateVFOData();
}

void VfoTableModel::UpdateVFOData()
{
    std::vector<std::string> labels;
    labels.reserve(kVfoRows);
    for (int row = 0; row < kVfoRows; ++row)
        labels.push_back(std::to_string(row));
    ShowRows(std::move(labels));
}

std::string VfoTableModel::Cell(int row, Column column) const
{
    return VfoCell(image_, row, column);
}

}  // namespace rqm5
