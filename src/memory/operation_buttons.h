#pragma once

#include <QWidget>

namespace rqm5 {

class RowCommands;

/// The buttons beside the memory table.
class OperationButtons : public QWidget
{
    Q_OBJECT

  public:
    explicit OperationButtons(RowCommands& rows);
};

}  // namespace rqm5
