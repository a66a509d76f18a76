#include "vfo/vfo_table.h"

#include "ui/table_font.h"

namespace rqm5 {

VfoTable::VfoTable(const CloneImage& image, QWidget* parent)
    : ChannelTable({300, 1035, 480, 705, 555, 390, 675, 705, 540, 870, 2055}, parent), model_(image, nullptr)
{
    setObjectName(QStringLiteral("MSFlexGrid2"));
    setAccessibleName(tr("VFO bands"));
    setStatusTip(tr("One VFO setting per band. Enter or a double click edits the selected one."));
    setModel(&model_);
    ChangeFont(*this);
    SelectTableRow(1);
}

void VfoTable::UpdateVFOData()
{
    const int row = CurrentTableRow();
    model_.UpdateVFOData();
    SelectTableRow(row);
}

}  // namespace rqm5
