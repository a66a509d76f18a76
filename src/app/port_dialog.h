#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <array>

#include "link/com_ports.h"
#include "link/receiver_search.h"

namespace rqm5 {

/// `dlgCOM`: which COM number the receiver's cable is on, and which device a number stands for.
class dlgCOM : public QDialog
{
    Q_OBJECT

  public:
    explicit dlgCOM(QWidget* parent);

    /// Lists the ports anew and selects COM number 1 to 14.
    void ShowPorts(int number);

    /// The selected COM number, 1 to 14.
    int SelectedNumber() const { return opbCom_.checkedId() + 1; }

    /// What is shown goes by the ports that are there; whoever looks need not wait for the next look.
    void LookAgain();

    void done(int result) override;

  signals:
    /// Every port is about to be asked for a receiver; whoever has one open closes it.
    void Searching();

  private:
    void AddOption(QGridLayout& rows, int index);
    QLayout* MakeDeviceRow();
    QLayout* MakeSearchRow();
    void cmbFindReceiver_Click();
    void ShowOutcome(const ReceiverSearch::Outcome& outcome);
    void ChooseFound(const QString& device);
    void ShowPresence(PortInfo& port) const;
    void FillFoundPorts();
    void opbCom_Click();
    void cbbDevice_Click();
    void txtDevice_Change();
    void OKButton_Click();
    void ShowDeviceText(int index);
    PortInfo& Selected() { return ports_[opbCom_.checkedId()]; }

    QButtonGroup opbCom_;
    std::array<QLabel*, kComPorts> lblDevice_{};
    QLabel* lblPath_;
    QLineEdit* txtDevice_;
    QComboBox* cbbDevice_;
    QPushButton* cmbFindReceiver_;
    QLabel* lblFound_;
    QPushButton* OKButton_;
    ReceiverSearch search_;
    QTimer look_;
    QList<PortInfo> ports_;    ///< as the user has them now, COM 1 first
    QList<PortInfo> current_;  ///< as they are kept
    QList<PortInfo> found_;
};

}  // namespace rqm5
