#include "ui/table_font.h"

#include <QWidget>

#include "fonts/fixed_pitch_font.h"

namespace rqm5 {

void ChangeFont(QWidget& table)
{
    table.setFont(FixedPitchFont(table.font()));
}

}  // namespace rqm5
