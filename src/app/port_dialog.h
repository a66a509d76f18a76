#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "link/com_ports.h"

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

  private:
    void AddOption(QGridLayout& rows, int index);
    QLayout* MakeDeviceRow();
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
    QList<PortInfo> ports_;    ///< as the user has them now, COM 1 first
    QList<PortInfo> current_;  ///< as they are kept
    QList<PortInfo> found_;
};

}  // namespace rqm5
