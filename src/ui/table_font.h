#pragma once

class QWidget;

namespace rqm5 {

/// Sets the fixed-pitch font of the tables, in the size that the table has.
void ChangeFont(QWidget& table);

}  // namespace rqm5
