#include "vfo/vfo_table.h"

#include "ui/form_texts.h"
#include "ui/table_font.h"

namespace rqm5 {

VfoTable::VfoTable(const Document& document, QWidget* parent)
    : ChannelTable({300, 1035, 480, 705, 555, 390, 675, 705, 540, 870, 2055}, parent),
      model_(document.Image(), nullptr)
{
    setObjectName(QStringLiteral("MSFlexGrid2"));
    setAccessibleName(Designed(QT_TR_NOOP("VFO bands")));
    setStatusTip(
        Designed(QT_TR_NOOP("One VFO setting per band. Enter or a double click edits the selected one.")));
    setModel(&model_);
    ChangeFont(*this);
    SelectTableRow(1);
    connect(&document, &Document::Replaced, this, &VfoTable::UpdateVFOData);
    connect(&document, &Document::Changed, this, [this](const ImageChange& change) {
        if (change.HasVfoRows() || change.HasSetting(&ReceiverSettings::model))
            UpdateVFOData();
    });
}

void VfoTable::UpdateVFOData()
{
    const int row = CurrentTableRow();
    model_.UpdateVFOData();
    SelectTableRow(row);
}

}  // namespace rqm5
