#pragma once

#include <QWidget>

#include "settings/setting_controls.h"

namespace rqm5 {

/// The page "Settings 2": display, power, keys, sound, reception and antennas.
class Settings2Page : public QWidget
{
    Q_OBJECT

  public:
    Settings2Page(Document& document, QWidget* parent);

  signals:
    void ReadRequested();
    void WriteRequested();

  private:
    QWidget* BuildSettings();
    QLayout* BuildTransferRow();

    SettingControls controls_;
};

}  // namespace rqm5
