#pragma once

#include <QComboBox>

#include "document/document.h"

namespace rqm5 {

/// `cbbBank`: the groups of memory rows. Its popup says beside each how many of its rows hold a channel.
class BankList : public QComboBox
{
    Q_OBJECT

  public:
    static constexpr int kEntriesInSight = 20;

    BankList(const Document& document, QWidget* parent);

    void showPopup() override;

  protected:
    /// The wheel is for the table below unless the list has the focus.
    void wheelEvent(QWheelEvent* event) override;

  private:
    void ShowTexts();
};

}  // namespace rqm5
