#pragma once

#include <QWidget>

#include "settings/setting_controls.h"

namespace rqm5 {

class VfoTable;

/// The page "Settings 1": model region, operating mode, scan mode, volume, squelch and the VFO bands.
class Settings1Page : public QWidget
{
    Q_OBJECT

  public:
    Settings1Page(Document& document, QWidget* parent);

    /// Makes a VFO row 0 to 13 the current one.
    void GoToVfoRow(int row);

    /// True for the place in kSettingFields of a setting on this page.
    static bool Shows(int setting);

    /// The current row of the VFO table, counted from 1.
    int SelectedVfoRow() const;

  signals:
    void ReadRequested();
    void WriteRequested();
    void ModifyRequested(int vfoRow);  ///< VFO row 0 to 13

  private:
    QLayout* BuildOptions();
    QLayout* BuildTransferRow();

    SettingControls controls_;
    VfoTable* table_;
};

}  // namespace rqm5
