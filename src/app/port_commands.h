#pragma once

#include <QObject>
#include <QTimer>
#include <QWidget>

#include "app/start_options.h"
#include "link/serial_port.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// The COM number in use, and Tools > COM Port Setup.
class PortCommands : public QObject
{
    Q_OBJECT

  public:
    PortCommands(SerialPort& port, Dialogs& dialogs, const StartOptions& options, QWidget& window);

    int CommPort() const { return CommPort_; }

    /// Takes the number that was kept at the end of the last run; keeps it for the next one.
    void Load();
    void Save() const;

    void mnuToolsOptions_Click();

  signals:
    /// Another port was chosen, or its device has come or gone.
    void PortChosen(int number, const QString& device, bool isPresent);

  private:
    void SetCommPort(int number);
    void LookForDevice();
    bool IsPresent() const;

    SerialPort& port_;
    Dialogs& dialogs_;
    const StartOptions& options_;
    QWidget& window_;
    int CommPort_ = 1;
    QString device_;
    bool wasPresent_ = false;
    QTimer look_;
};

}  // namespace rqm5
