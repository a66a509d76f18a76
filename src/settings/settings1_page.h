#pragma once

#include <QWidget>

#include "settings/setting_controls.h"
#include "ui/dialogs.h"

namespace rqm5 {

class VfoTable;

/// The page "Settings 1": model region, operating mode, scan mode, volume, squelch and the VFO bands.
class Settings1Page : public QWidget
{
    Q_OBJECT

  public:
    Settings1Page(CloneImage& image, Dialogs& dialogs, QWidget* parent);

    /// Shows the settings of the image.
    void ShowSettings();

    /// Shows the VFO rows of the image anew.
    void UpdateVFOData();

    /// The current row of the VFO table, counted from 1.
    int SelectedVfoRow() const;

    /// Disables the page while a transfer runs.
    void SetTransferRunning(bool running);

  signals:
    void Edited();
    void RegionChanged();
    void ReadRequested();
    void WriteRequested();
    void ModifyRequested(int vfoRow);  ///< VFO row 0 to 13

  private:
    QLayout* BuildOptions();
    QLayout* BuildTransferRow();
    void opbModel_Click();

    SettingControls controls_;
    VfoTable* table_;
};

}  // namespace rqm5
