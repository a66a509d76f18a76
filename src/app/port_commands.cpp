#include "app/port_commands.h"

#include <utility>

#include "app/port_dialog.h"
#include "link/com_ports.h"
#include "link/port_file.h"

namespace rqm5 {
namespace {

constexpr std::chrono::milliseconds kLookAgain{2000};

}  // namespace

PortCommands::PortCommands(SerialPort& port, Dialogs& dialogs, const StartOptions& options, QWidget& window)
    : QObject(&window), port_(port), dialogs_(dialogs), options_(options), window_(window)
{
    look_.setTimerType(Qt::VeryCoarseTimer);
    connect(&look_, &QTimer::timeout, this, &PortCommands::LookForDevice);
    look_.start(kLookAgain);
}

void PortCommands::Load()
{
    SetCommPort(ReadPortFile(options_.portFile));
}

void PortCommands::Save() const
{
    WritePortFile(options_.portFile, CommPort_);
}

void PortCommands::SetCommPort(int number)
{
    CommPort_ = number;
    device_ = DeviceOfComPort(number);
    if (options_.useDevice)
        options_.useDevice(device_);
    wasPresent_ = IsPresent();
    emit PortChosen(number, device_, wasPresent_);
}

bool PortCommands::IsPresent() const
{
    return options_.isPresent ? options_.isPresent(device_) : IsDevicePresent(device_);
}

void PortCommands::LookForDevice()
{
    const bool isPresent = IsPresent();
    if (std::exchange(wasPresent_, isPresent) != isPresent)
        emit PortChosen(CommPort_, device_, isPresent);
}

void PortCommands::mnuToolsOptions_Click()
{
    dlgCOM dialog(&window_);
    dialog.ShowPorts(CommPort_);
    connect(&dialog, &dlgCOM::Searching, this, [this] { port_.Close(); });
    if (dialogs_.Run(dialog) != QDialog::Accepted)
        return;
    port_.Close();
    SetCommPort(dialog.SelectedNumber());
}

}  // namespace rqm5
