#pragma once

#include <QWidget>
#include <optional>

#include "document/document.h"
#include "memory/bank_fill.h"

class QLabel;

namespace rqm5 {

/// The line below the bank sizes that comes up when new sizes have put channels into other banks. It offers
/// to move the rows after them; as long as nobody takes it up, the rows stay where they are.
class BankMoveOffer : public QWidget
{
    Q_OBJECT

  public:
    BankMoveOffer(Document& document, QWidget* parent);

    /// Changes a size, and offers to move the channels if it has put any into another bank. Sizes that are
    /// changed one after the other are one plan: the offer is about all of them.
    void SetSize(int bank, int size);

  private:
    void cmbBankMove_Click();
    void Withdraw();
    void ShowDisplaced();

    Document& document_;
    QLabel* lblBankMove_;
    std::optional<BankSizes> before_;  ///< the sizes before the plan
};

}  // namespace rqm5
