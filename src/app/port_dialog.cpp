#include "app/port_dialog.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

#include "ui/elided_label.h"
#include "ui/tall_area.h"

namespace rqm5 {

namespace {

constexpr int kPathColumns = 40;

/// Between two looks at the ports: soon enough for whoever has just plugged a cable in.
constexpr std::chrono::milliseconds kLookAgain{1000};

/// A number that the environment gives a device keeps it, whatever the user chooses here.
bool IsFixed(int number)
{
    return !qEnvironmentVariableIsEmpty(qPrintable(QStringLiteral("RQM5_COM%1").arg(number)));
}

}  // namespace

dlgCOM::dlgCOM(QWidget* parent) : QDialog(parent), opbCom_(this)
{
    setObjectName(QStringLiteral("dlgCOM"));
    setWindowTitle(tr("COM Port Setup"));
    auto* column = new QVBoxLayout(this);
    auto* options = new QWidget(this);
    auto* rows = new QGridLayout(options);
    rows->setVerticalSpacing(2);
    rows->setColumnStretch(1, 1);
    for (int i = 0; i < kComPorts; ++i)
        AddOption(*rows, i);
    auto* list = new TallArea(options, this);
    list->setFrameShape(QFrame::StyledPanel);
    column->addWidget(list, 1);
    column->addLayout(MakeDeviceRow());
    column->addLayout(MakeSearchRow());

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    OKButton_ = buttons->button(QDialogButtonBox::Ok);
    OKButton_->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &dlgCOM::OKButton_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &dlgCOM::reject);
    connect(&opbCom_, &QButtonGroup::idToggled, this, [this](int, bool isChecked) {
        if (isChecked)
            opbCom_Click();
    });
    connect(&look_, &QTimer::timeout, this, &dlgCOM::LookAgain);
    look_.start(kLookAgain);
}

void dlgCOM::AddOption(QGridLayout& rows, int index)
{
    auto* option = new QRadioButton(tr("COM %1").arg(index + 1, 2), this);
    option->setObjectName(QStringLiteral("opbCom_%1").arg(index));
    opbCom_.addButton(option, index);
    auto* device = new ElidedLabel(Qt::ElideMiddle, this);
    device->setObjectName(QStringLiteral("lblDevice_%1").arg(index));
    lblDevice_.at(static_cast<std::size_t>(index)) = device;
    rows.addWidget(option, index, 0);
    rows.addWidget(device, index, 1);
}

QLayout* dlgCOM::MakeDeviceRow()
{
    auto* rows = new QGridLayout;
    lblPath_ = new QLabel(this);
    txtDevice_ = new QLineEdit(this);
    txtDevice_->setObjectName(QStringLiteral("txtDevice"));
    txtDevice_->setMinimumWidth(txtDevice_->fontMetrics().averageCharWidth() * kPathColumns);
    lblPath_->setBuddy(txtDevice_);
    cbbDevice_ = new QComboBox(this);
    cbbDevice_->setObjectName(QStringLiteral("cbbDevice"));
    auto* found = new QLabel(tr("&Found now:"), this);
    found->setBuddy(cbbDevice_);
    rows->addWidget(lblPath_, 0, 0);
    rows->addWidget(txtDevice_, 0, 1);
    rows->addWidget(found, 1, 0);
    rows->addWidget(cbbDevice_, 1, 1);
    rows->setColumnStretch(1, 1);
    connect(txtDevice_, &QLineEdit::textEdited, this, &dlgCOM::txtDevice_Change);
    connect(cbbDevice_, &QComboBox::activated, this, &dlgCOM::cbbDevice_Click);
    return rows;
}

void dlgCOM::ShowPorts(int number)
{
    current_ = ports_ = ComPorts();
    found_ = SystemPorts();
    for (int i = 0; i < kComPorts; ++i)
        ShowDeviceText(i);
    FillFoundPorts();
    TallArea::FitToScreen(*this);
    QAbstractButton* option = opbCom_.button(number - 1);
    option->setChecked(true);
    option->setFocus();
    opbCom_Click();
}

/// What the user has typed, and which number is selected, stays.
void dlgCOM::LookAgain()
{
    // A list that is open would change under the pointer.
    if (ports_.isEmpty() || cbbDevice_->view()->isVisible())
        return;
    const QList<PortInfo> now = ComPorts();
    found_ = SystemPorts();
    for (int i = 0; i < kComPorts; ++i) {
        if (ports_.at(i).device == current_.at(i).device)
            ports_[i] = now.at(i);
        else
            ShowPresence(ports_[i]);
        ShowDeviceText(i);
    }
    current_ = now;
    FillFoundPorts();
    if (txtDevice_->text().trimmed() != Selected().device)
        txtDevice_->setText(Selected().device);
    cbbDevice_->setCurrentIndex(cbbDevice_->findData(Selected().device));
    cbbDevice_->setEnabled(txtDevice_->isEnabled() && !found_.isEmpty());
}

void dlgCOM::FillFoundPorts()
{
    cbbDevice_->clear();
    cbbDevice_->setPlaceholderText(found_.isEmpty() ? tr("no serial port") : tr("choose a device"));
    for (const PortInfo& port : std::as_const(found_)) {
        const QString text =
            port.description.isEmpty() ? port.device : tr("%1, %2").arg(port.device, port.description);
        cbbDevice_->addItem(text, port.device);
    }
    cbbDevice_->setCurrentIndex(-1);
}

void dlgCOM::ShowDeviceText(int index)
{
    const PortInfo& port = ports_.at(index);
    const QString what = port.isPresent ? port.description : tr("not present");
    const bool hasBoth = !port.device.isEmpty() && !what.isEmpty();
    const QString text = hasBoth ? tr("%1, %2").arg(port.device, what) : port.device + what;
    lblDevice_.at(static_cast<std::size_t>(index))->setText(text);
    opbCom_.button(index)->setAccessibleDescription(text);
}

void dlgCOM::opbCom_Click()
{
    const bool isFixed = IsFixed(SelectedNumber());
    const QString why = isFixed ? tr("Set by the environment variable RQM5_COM%1").arg(SelectedNumber())
                                : tr("The device that this number stands for; empty for the usual one");
    lblPath_->setText(tr("&Device of COM %1:").arg(SelectedNumber()));
    txtDevice_->setText(Selected().device);
    txtDevice_->setCursorPosition(0);
    txtDevice_->setEnabled(!isFixed);
    txtDevice_->setToolTip(why);
    cbbDevice_->setEnabled(!isFixed && !found_.isEmpty());
    cbbDevice_->setCurrentIndex(cbbDevice_->findData(Selected().device));
}

void dlgCOM::cbbDevice_Click()
{
    txtDevice_->setText(cbbDevice_->currentData().toString());
    txtDevice_Change();
}

void dlgCOM::txtDevice_Change()
{
    PortInfo& port = Selected();
    port.device = txtDevice_->text().trimmed();
    ShowPresence(port);
    ShowDeviceText(opbCom_.checkedId());
    cbbDevice_->setCurrentIndex(cbbDevice_->findData(port.device));
}

void dlgCOM::ShowPresence(PortInfo& port) const
{
    const auto known = std::ranges::find(found_, port.device, &PortInfo::device);
    const bool isListed = known != found_.end();
    port.isPresent = isListed || (!port.device.isEmpty() && QFileInfo::exists(DeviceNode(port.device)));
    port.description = isListed ? known->description : QString();
}

void dlgCOM::OKButton_Click()
{
    for (int i = 0; i < kComPorts; ++i)
        if (ports_.at(i).device != current_.at(i).device)
            SetDeviceOfComPort(i + 1, ports_.at(i).device);
    accept();
}

}  // namespace rqm5
