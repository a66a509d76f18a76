#pragma once

#include <QWidget>

#include "settings/setting_controls.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// The page "Settings 2": display, power, keys, sound, reception and antennas.
class Settings2Page : public QWidget
{
    Q_OBJECT

  public:
    Settings2Page(CloneImage& image, Dialogs& dialogs, QWidget* parent);

    /// Shows the settings of the image.
    void ShowSettings();

    /// Disables the page while a transfer runs.
    void SetTransferRunning(bool running);

  signals:
    void Edited();
    void ReadRequested();
    void WriteRequested();

  private:
    QWidget* BuildSettings();
    QLayout* BuildTransferRow();

    SettingControls controls_;
};

}  // namespace rqm5
