#include "app/port_commands.h"

#include "app/port_dialog.h"
#include "link/com_ports.h"
#include "link/port_file.h"

namespace rqm5 {

PortCommands::PortCommands(SerialPort& port, Dialogs& dialogs, const StartOptions& options, QWidget& window)
    : QObject(&window), port_(port), dialogs_(dialogs), options_(options), window_(window)
{
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
    const QString device = DeviceOfComPort(number);
    if (options_.useDevice)
        options_.useDevice(device);
    emit PortChosen(number, device);
}

void PortCommands::mnuToolsOptions_Click()
{
    dlgCOM dialog(&window_);
    dialog.ShowPorts(CommPort_);
    if (dialogs_.Run(dialog) != QDialog::Accepted)
        return;
    port_.Close();
    SetCommPort(dialog.SelectedNumber());
}

}  // namespace rqm5
